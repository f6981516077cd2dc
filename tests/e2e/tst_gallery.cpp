// Every screen of the menu in each language, connected to a simulated good board and with one
// reading taken: no button or window title may be left empty (a caption whose key is
// missing shows nothing at all). With VEKTO_GALLERY_DIR set, each screen is also saved as a PNG
// there, for review.

#include "DesktopProgram.h"
#include "FakeShell.h"
#include "Screens.h"
#include "SimProcess.h"

#include <QAbstractButton>
#include <QDir>
#include <QMdiSubWindow>
#include <QtTest>

class TestGallery : public QObject
{
    Q_OBJECT

    static QStringList emptyCaptions(QWidget *screen)
    {
        QStringList empty;
        if (screen->windowTitle().trimmed().isEmpty())
            empty << QStringLiteral("window title");
        for (QAbstractButton *b : screen->findChildren<QAbstractButton *>())
            if (!b->objectName().isEmpty() && !b->objectName().startsWith(QLatin1String("qt_")) &&
                b->isVisibleTo(screen) && b->icon().isNull() && b->text().trimmed().isEmpty())
                empty << b->objectName();
        return empty;
    }

    static void save(QWidget *window, quint8 idioma, const QString &name)
    {
        const QString dir = qEnvironmentVariable("VEKTO_GALLERY_DIR");
        if (dir.isEmpty())
            return;
        QDir().mkpath(dir);
        window->grab().save(QDir(dir).filePath(QStringLiteral("%1-%2.png").arg(idioma).arg(name)));
    }

private slots:
    void screens_data()
    {
        QTest::addColumn<quint8>("idioma");
        QTest::newRow("Português") << quint8(1);
        QTest::newRow("English") << quint8(2);
        QTest::newRow("Español") << quint8(3);
    }
    void screens()
    {
        QFETCH(quint8, idioma);
        if (!SimProcess::available())
            QSKIP("vekto-sim or Config.vkt was not built");
        SimProcess sim;
        const QString error = sim.start(QStringLiteral("IP 7"), QStringLiteral("good"));
        QVERIFY2(error.isEmpty(), qPrintable(error));
        ConfigCopy config;
        QVERIFY(config.ok());
        QVERIFY(Database(config.path()).setIdioma(idioma));

        DesktopProgram program(config.path());
        FakeShell shell;
        Screens::registerAll(*program.inicial, shell);
        program.inicial->resize(1366, 768);
        program.inicial->show();
        QVERIFY(program.selectPort(sim.port()));
        program.connectButton()->click();
        QTRY_COMPARE_WITH_TIMEOUT(program.inicial->status(), QStringLiteral("Verde"), 20000);
        QTRY_COMPARE_WITH_TIMEOUT(program.flag(), QStringLiteral("1"), 20000);

        for (const QString &name : Screens::names()) {
            QWidget *screen = program.inicial->openScreen(name);
            QVERIFY2(screen, qPrintable(name));
            if (name == QLatin1String("Acorn")) {
                // The board is an IP 7: the Acorn readout says on opening that it needs an IP X.
                QCOMPARE(program.dialogs.shown, QStringList{QStringLiteral("SOMENTE_X")});
                program.dialogs.shown.clear();
            } else if (auto *read = screen->findChild<QAbstractButton *>(QStringLiteral("btExecutaLeitura"))) {
                QTRY_VERIFY_WITH_TIMEOUT(read->isEnabled(), 10000);
                read->click();
                QTRY_VERIFY_WITH_TIMEOUT(!read->isEnabled(), 5000);
                QTRY_VERIFY_WITH_TIMEOUT(read->isEnabled() && program.flag() == QLatin1String("1"), 20000);
            }
            if (program.flag() != QLatin1String("1")) {
                // A screen that reads on opening (the NAND size, the battery) is shown with its reading.
                QTRY_COMPARE_WITH_TIMEOUT(program.flag(), QStringLiteral("1"), 20000);
                QTest::qWait(1000);
            }
            const QStringList empty = emptyCaptions(screen);
            QVERIFY2(empty.isEmpty(), qPrintable(name + QStringLiteral(": ") + empty.join(u' ')));
            save(program.inicial.get(), idioma, name);
            if (auto *window = qobject_cast<QMdiSubWindow *>(screen->parentWidget()))
                window->close();
        }
        QVERIFY(program.dialogs.shown.isEmpty());
    }
};

QTEST_MAIN(TestGallery)
#include "tst_gallery.moc"
