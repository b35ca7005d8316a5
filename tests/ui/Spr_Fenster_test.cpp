// The list of jumpmarks as an item model and as a view.
#include "editors/Sprungmarken.h"
#include "support/scripted_platform.h"
#include "ui/Spr_Fenster.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTest>

namespace varnholt::test {
namespace {

using Spr_Fenster_Test = Welt;

void Liste_Setzen(std::vector<std::string> Neue)
{
    Sprungmarken.Liste = std::move(Neue);
    ++Sprungmarken.Liste_Stand;
}

TEST_F(Spr_Fenster_Test, the_model_keeps_the_rules_of_item_models_while_the_list_changes)
{
    Sprungmarken_Modell      Modell;
    QAbstractItemModelTester Pruefer(&Modell,
                                     QAbstractItemModelTester::FailureReportingMode::Fatal);
    Liste_Setzen({"one", "two", "\xE4hm"});
    Modell.Nachziehen();
    EXPECT_EQ(Modell.rowCount({}), 3);
    EXPECT_EQ(Modell.data(Modell.index(2), Qt::DisplayRole).toString(), QStringLiteral("ähm"));
    Liste_Setzen({"No jumpmarks"});
    Modell.Nachziehen();
    EXPECT_EQ(Modell.rowCount({}), 1);
    Liste_Setzen({});
    Modell.Nachziehen();
    EXPECT_EQ(Modell.rowCount({}), 0);
    EXPECT_FALSE(Modell.data(Modell.index(0), Qt::DisplayRole).isValid());
}

TEST_F(Spr_Fenster_Test, a_list_that_shrank_before_the_view_knows_gives_no_text)
{
    Sprungmarken_Modell Modell;
    Liste_Setzen({"one", "two"});
    Modell.Nachziehen();
    Sprungmarken.Liste.resize(1);
    EXPECT_FALSE(Modell.data(Modell.index(1), Qt::DisplayRole).isValid());
}

TEST_F(Spr_Fenster_Test, a_click_and_enter_choose_an_entry)
{
    Liste_Setzen({"one", "two"});
    Spr_Fenster Fenster_Liste;
    Fenster_Liste.resize(200, 200);
    Fenster_Liste.show();
    Fenster_Liste.Nachziehen();
    QSignalSpy  Gewaehlt(&Fenster_Liste, &Spr_Fenster::Eintrag_Gewaehlt);
    const QRect Ort = Fenster_Liste.visualRect(Fenster_Liste.model()->index(1, 0));
    QTest::mouseClick(Fenster_Liste.viewport(), Qt::LeftButton, {}, Ort.center());
    ASSERT_EQ(Gewaehlt.size(), 1);
    EXPECT_EQ(Gewaehlt.at(0).at(0).toInt(), 1);
    QTest::keyClick(&Fenster_Liste, Qt::Key_Up);
    QTest::keyClick(&Fenster_Liste, Qt::Key_Return);
    ASSERT_EQ(Gewaehlt.size(), 2);
    EXPECT_EQ(Gewaehlt.at(1).at(0).toInt(), 0);
}

} // namespace
} // namespace varnholt::test
