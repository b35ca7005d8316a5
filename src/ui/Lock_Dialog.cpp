// The form `Lockmenu`.
#include "ui/Lock_Dialog.h"

#include "core/messages.h"
#include "programmer/Lockmenu.h"
#include "ui/Qt_Text.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace varnholt {

Lock_Dialog::Lock_Dialog(QWidget* Eltern) : QDialog(Eltern)
{
    setObjectName(QStringLiteral("Lockmenu"));
    setWindowTitle(Qt_Text(In_Sprache({"Lockbits setzen", "Set lock bits"})));
    auto* Warnung = new QLabel(Meldungs_Text(Lockmenu.Label1));
    Warnung->setObjectName(QStringLiteral("Label1"));
    Warnung->setWordWrap(true);
    Warnung->setMinimumWidth(400);
    auto* Alles = new QVBoxLayout(this);
    Alles->addWidget(Warnung);
    for (int i = 1; i <= Schutz_Modi; ++i) {
        auto* o = new QRadioButton(Qt_Text(Lockmenu.Option[static_cast<std::size_t>(i - 1)]));
        o->setObjectName(QStringLiteral("Option%1").arg(i));
        o->setChecked(i == Lockmenu.Schutz_Modus);
        o->setEnabled(i < Schutz_Modi || Lockmenu.Option4_Aktiv);
        connect(o, &QRadioButton::clicked, this, [i] { Lockmenu_Option_Click(i); });
        Alles->addWidget(o);
    }
    auto*      Reihe = new QHBoxLayout;
    const auto Knopf = [&](const char* Name, const std::string& Beschriftung, void (*Befehl)()) {
        auto* k = new QPushButton(Qt_Text(Beschriftung));
        k->setObjectName(QLatin1String(Name));
        connect(k, &QPushButton::clicked, this, [this, Befehl] {
            Befehl();
            if (!Lockmenu.Offen)
                accept();
        });
        Reihe->addWidget(k);
        return k;
    };
    Reihe->addStretch();
    Knopf("Command1", Lockmenu.Command1, Lockmenu_Command1_Click);
    Knopf("Command2", Lockmenu.Command2, Lockmenu_Command2_Click)->setDefault(true);
    Alles->addLayout(Reihe);
    connect(this, &QDialog::rejected, this, [] { Lockmenu_Command2_Click(); });
}

} // namespace varnholt
