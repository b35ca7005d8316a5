// The question of a partial load.
#include "ui/Abfrage_Dialog.h"

#include "core/messages.h"
#include "ui/Qt_Text.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace varnholt {
namespace {

constexpr int Breite          = 480; // device-independent pixels
constexpr int Wort_Hoechstens = 40;  // characters without a place to break

// The text with places to break inside of long paths.
QString Umbrechbar(const QString& Text)
{
    const QChar Bruch(0x200B);
    QString     Ziel;
    int         Ohne = 0;
    for (const QChar c : Text) {
        Ziel += c;
        Ohne = c.isSpace() ? 0 : Ohne + 1;
        if (c == u'/' || Ohne >= Wort_Hoechstens) {
            Ziel += Bruch;
            Ohne = 0;
        }
    }
    return Ziel;
}

QRadioButton* Wahl(const char* Name, const Text_Paar& Text)
{
    auto* Knopf = new QRadioButton(Qt_Text(In_Sprache(Text)));
    Knopf->setObjectName(QLatin1String(Name));
    return Knopf;
}

} // namespace

Abfrage_Dialog::Abfrage_Dialog(std::string_view Text, QWidget* Eltern) : QDialog(Eltern)
{
    setObjectName(QStringLiteral("Abfrage"));
    setWindowTitle(QApplication::applicationDisplayName());
    auto* Label = new QLabel(Umbrechbar(Meldungs_Text(Text)));
    Label->setObjectName(QStringLiteral("Label"));
    Label->setTextFormat(Qt::PlainText);
    Label->setWordWrap(true);
    auto* Bereich1 = Wahl(
        "Bereich1", {"&Erste Hälfte (000000h bis 07FFFFh)", "&First half (000000h to 07FFFFh)"});
    Bereich2 = Wahl("Bereich2",
                    {"&Zweite Hälfte (080000h bis 0FFFFFh)", "&Second half (080000h to 0FFFFFh)"});
    Bereich1->setChecked(true);
    auto* Knoepfe_Leiste = new QDialogButtonBox;
    auto* Ok  = Knoepfe_Leiste->addButton(QStringLiteral("OK"), QDialogButtonBox::AcceptRole);
    auto* Weg = Knoepfe_Leiste->addButton(Qt_Text(In_Sprache({"Abbrechen", "Abort"})),
                                          QDialogButtonBox::RejectRole);
    Ok->setObjectName(QStringLiteral("OK"));
    Ok->setDefault(true);
    Weg->setObjectName(QStringLiteral("Abbrechen"));
    auto* Alles = new QVBoxLayout(this);
    Alles->setContentsMargins(16, 16, 16, 14);
    Alles->setSpacing(10);
    Alles->addWidget(Label);
    Alles->addSpacing(4);
    Alles->addWidget(Bereich1);
    Alles->addWidget(Bereich2);
    Alles->addSpacing(6);
    Alles->addWidget(Knoepfe_Leiste);
    setMinimumWidth(Breite);
    resize(Breite, Alles->totalHeightForWidth(Breite));
    connect(Knoepfe_Leiste, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(Knoepfe_Leiste, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

int Abfrage_Dialog::Waehlen()
{
    if (exec() != QDialog::Accepted)
        return 0;
    return Bereich2->isChecked() ? 2 : 1;
}

} // namespace varnholt
