// Rich text between the logic and Qt's documents: look of characters and of paragraphs.
#pragma once

#include "core/rich_text.h"

#include <QColor>
#include <QTextBlockFormat>
#include <QTextCharFormat>
#include <QTextCursor>

#include <cstdint>

namespace varnholt {

// The colour as the logic knows it, as a property of the characters.
inline constexpr int Farb_Eigenschaft = QTextFormat::UserProperty + 1;

// A colour as it is drawn: on a dark ground the same hue, light enough to be read.
QColor Lesbare_Farbe(std::int32_t Farbe, bool Dunkel);
// A format of nothing but that colour, to be merged into others; 0 takes a colour away.
QTextCharFormat Farb_Format(std::int32_t Farbe, bool Dunkel);

QTextCharFormat  Qt_Zeichenformat(const Zeichen_Bild_T& Bild, bool Dunkel);
Zeichen_Bild_T   Zeichen_Bild_Aus(const QTextCharFormat& Format);
QTextBlockFormat Qt_Absatzformat(const Absatz_Bild_T& Bild);
Absatz_Bild_T    Absatz_Bild_Aus(const QTextBlockFormat& Format);

// Puts a text in place of the cursor's selection, the cursor behind it. The first paragraph joins
// the one at the cursor and takes its look.
void Reich_Einfuegen(QTextCursor& Zeiger, const Reich_Text_T& Text, bool Dunkel);
// The piece of a document between two of its positions.
Reich_Text_T Reich_Aus_Qt(const QTextDocument& Dokument, int Von, int Bis);

} // namespace varnholt
