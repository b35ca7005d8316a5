// The question for a hardware version.
#include "ui/Versions_Dialog.h"

#include "ui/Qt_Text.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace varnholt {

Versions_Dialog::Versions_Dialog(
    const char* Name, const Versions_Wahl& Wahl, int Bisher, void (*Klick)(int), QWidget* Eltern)
    : QDialog(Eltern)
{
    constexpr int Breite = 420; // device-independent pixels
    setObjectName(QLatin1String(Name));
    setWindowTitle(Lesbarer_Text({"Hardware Version", "Hardware version"}));
    auto* Frage = new QLabel(Lesbarer_Text(Wahl.Frage));
    Frage->setObjectName(QStringLiteral("Frage"));
    Frage->setWordWrap(true);
    Frage->setMinimumWidth(Breite);
    auto* Spalte = new QVBoxLayout(this);
    Spalte->setContentsMargins(16, 16, 16, 16);
    Spalte->setSpacing(10);
    Spalte->addWidget(Frage);
    for (int i = 0; i < 3; ++i) {
        const auto Platz = static_cast<std::size_t>(i);
        auto*      Knopf = new QPushButton(Lesbarer_Text(Wahl.Texte[Platz]));
        Knopf->setObjectName(QStringLiteral("Version_%1").arg(Wahl.Werte[Platz]));
        Knopf->setMinimumHeight(34);
        if (Wahl.Werte[Platz] == Bisher)
            Knopf->setDefault(true);
        connect(Knopf, &QPushButton::clicked, this, [this, Klick, i] {
            Klick(i);
            accept();
        });
        Spalte->addWidget(Knopf);
    }
}

} // namespace varnholt
