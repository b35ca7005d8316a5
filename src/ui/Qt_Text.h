// What crosses the border between the logic and Qt: texts (UTF-8 and Windows-1252), colours, fonts.
#pragma once

#include "core/codepage.h"
#include "core/interface_texts.h"
#include "core/messages.h"
#include "core/platform.h"

#include <QColor>
#include <QFont>
#include <QString>

#include <string>
#include <string_view>

namespace varnholt {

inline QString Qt_Text(std::string_view UTF8)
{
    return QString::fromUtf8(UTF8.data(), static_cast<qsizetype>(UTF8.size()));
}
inline QString     Qt_In_Sprache(const Text_Paar& Paar) { return Qt_Text(In_Sprache(Paar)); }
inline std::string Nach_Std(const QString& Text) { return Text.toStdString(); }

// A message text: CR LF become line feeds.
QString Meldungs_Text(std::string_view UTF8);
// The same of a fixed text, in English where the language of the settings is none: a dialog has to
// be readable.
QString Lesbarer_Text(const Festes_Paar& Paar);

// Windows-1252 to UTF-16 and back, unit by unit, so that positions stay; a unit that the code page
// doesn't have becomes `?`.
QString     Qt_Aus_1252(std::string_view Text);
std::string Nach_1252(QStringView Text);

// Blue byte first, as the logic writes colours: 0xDD1111 is a blue.
QColor       Qt_Farbe(std::int32_t Farbe);
std::int32_t Farbe_Aus(const QColor& Farbe);

// A font; what is not set stays as in Grund.
QFont     Qt_Schrift(const Schrift_T& Schrift, const QFont& Grund);
Schrift_T Schrift_Aus(const QFont& Schrift);
// The font of a window for which none is chosen, by Schrift_Edit, Schrift_Spr, Schrift_Notiz.
QFont Schrift_Vorgabe(int Ziel);

} // namespace varnholt
