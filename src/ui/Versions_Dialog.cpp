// The question for a hardware version.
#include "ui/Versions_Dialog.h"

#include "core/shared_state.h"
#include "ui/Qt_Text.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace varnholt {
namespace {

// In English where the language of the settings is none: the dialog has to be readable.
QString Text(const Festes_Paar& Paar) { return Meldungs_Text(Sprache == "D" ? Paar.D : Paar.E); }

} // namespace

Versions_Dialog::Versions_Dialog(
    const char* Name, const Versions_Wahl& Wahl, int Bisher, void (*Klick)(int), QWidget* Eltern)
    : QDialog(Eltern)
{
    constexpr int Breite = 420; // device-independent pixels
    setObjectName(QLatin1String(Name));
    setWindowTitle(Text({"Hardware Version", "Hardware version"}));
    auto* Frage = new QLabel(Text(Wahl.Frage));
    Frage->setObjectName(QStringLiteral("Frage"));
    Frage->setWordWrap(true);
    Frage->setMinimumWidth(Breite);
    auto* Spalte = new QVBoxLayout(this);
    Spalte->setContentsMargins(16, 16, 16, 16);
    Spalte->setSpacing(10);
    Spalte->addWidget(Frage);
    for (int i = 0; i < 3; ++i) {
        const auto Platz = static_cast<std::size_t>(i);
        auto*      Knopf = new QPushButton(Text(Wahl.Texte[Platz]));
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
