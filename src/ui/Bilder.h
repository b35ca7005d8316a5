// The icons of the program, drawn from vectors in the colours of the desktop.
#pragma once

#include <QIcon>
#include <QPalette>
#include <QString>

namespace varnholt {

// File name of the icon of a tool bar key or of any other icon name: lower case, umlauts spelled
// out, `Einfügen` gives "einfuegen".
QString Bild_Name(QStringView Name);

// The icon of that name in the colours of the palette, sharp in every size and on every screen
// scale; a null icon for an unknown name. Ask again when the palette changes.
QIcon Symbol_Bild(QStringView Name, const QPalette& Palette);

// The program's own icon, the same on every desktop.
QIcon Programm_Bild();

} // namespace varnholt
