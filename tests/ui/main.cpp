// Starts Qt before the tests: a widget needs its application.
#include <gtest/gtest.h>

#include <QApplication>

#include <cstdio>

namespace {

// The offscreen platform says of each window what it can't do; everything else is told.
void Meldung(QtMsgType, const QMessageLogContext&, const QString& Text)
{
    if (!Text.startsWith(QStringLiteral("This plugin does not support")))
        std::fprintf(stderr, "%s\n", qPrintable(Text));
}

} // namespace

int main(int argc, char** argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(Meldung);
    QApplication Anwendung(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
