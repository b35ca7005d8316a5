// The file association for one user: a desktop entry, its icon and a MIME type in the user's data
// folder. The association for all users comes with the installed package.
#pragma once

#include "core/platform.h"

#include <QByteArray>
#include <QString>

namespace varnholt {

// The value of the key Exec that starts Programm (absolute path) with one file.
QString Exec_Zeile(const QString& Programm);

// The desktop entry that starts Programm; empty for a path that such an entry can't hold.
QByteArray Starter_Text(const QString& Programm);

// The MIME package that gives files of the type's extension the MIME type of the entry; empty for
// an extension that isn't made of letters, digits, - and _.
QByteArray Mime_Text(const Dateityp_T& Typ);

// Writes both for the running program, the icon too, and has the desktop read them. A file that is
// there stays as it is. Where an installed package has its entry, nothing is written. True when
// something was; a home that can't be written is no error.
bool Dateityp_Fuer_Benutzer_Verknuepfen(const Dateityp_T& Typ);

} // namespace varnholt
