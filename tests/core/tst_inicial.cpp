// The program's start and main window. Start-up against every state Config.vkt can be found in:
// missing, unreadable as a database, without tables, or fine; a failure shows one three-language
// box, exits non-zero and leaves the file exactly as it was. Then the main window and the
// language screen on a real Config.vkt copy: the model list and its memory across starts, the
// menu holding only registered screens, one instance per screen, and a language change that
// closes the test screens, re-captions the frame and persists.

#include "ConnectionController.h"
#include "ConsoleExchange.h"
#include "Database.h"
#include "FakeDialogs.h"
#include "FakeSerialPort.h"
#include "Inicial.h"
#include "PortList.h"
#include "Session.h"
#include "Startup.h"
#include "TestScreen.h"
#include "xIdioma.h"
#include "platform/SqlFixture.h"

#include <QComboBox>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>
#include <memory>

namespace {

class DummyScreen : public TestScreen
{
public:
    using TestScreen::TestScreen;
    void retranslate() override {}
};

// One program start on a given Config.vkt: session, link, exchange, frame and two screens.
struct Program
{
    Session session;
    FakeSerialPort port;
    ConsoleExchange exchange{session, port};
    ConnectionController connection{session, exchange, port};
    PortList ports;
    FakeDialogs dialogs;
    std::unique_ptr<Inicial> inicial;

    explicit Program(const QString &path) : session(path)
    {
        if (const auto idioma = Database(path).idioma())
            session.setIdioma(*idioma);
        inicial = std::make_unique<Inicial>(ScreenContext{session, exchange, dialogs}, connection, ports);
        inicial->registerScreen(2, QStringLiteral("Master"), QStringLiteral("Modo Comandos e Comparador"),
                                [](const ScreenContext &ctx) -> QWidget * { return new DummyScreen(ctx, "Master"); });
        // Larger than any frame on a 1366 x 768 display.
        inicial->registerScreen(0, QStringLiteral("BuckTeste"), QStringLiteral("Buck Teste"),
                                [](const ScreenContext &ctx) -> QWidget * {
                                    auto *screen = new DummyScreen(ctx, "BuckTeste");
                                    screen->setMinimumSize(1500, 900);
                                    return screen;
                                });
        Inicial *window = inicial.get();
        inicial->registerScreen(10, QStringLiteral("xIdioma"), QStringLiteral("Idioma / Language"),
                                [window](const ScreenContext &ctx) -> QWidget * {
                                    return new xIdioma(ctx.session, ctx.dialogs, [window] { window->closeTestScreens(); });
                                }, false);
    }
    template<typename T> T *find(const char *name) { return inicial->findChild<T *>(QString::fromLatin1(name)); }
};

} // namespace

class TestInicial : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    QString m_path;

private slots:
    void init()
    {
        const QString shipped = QStringLiteral(VEKTO_BIN_DIR "/Config.vkt");
        if (!QFile::exists(shipped))
            QSKIP("Config.vkt was not built");
        m_path = m_dir.filePath(QStringLiteral("Config.vkt"));
        QFile::remove(m_path);
        QVERIFY(QFile::copy(shipped, m_path));
        QFile::setPermissions(m_path, QFile::ReadOwner | QFile::WriteOwner);
    }

    void unusableConfig_data()
    {
        QTest::addColumn<QByteArray>("content"); // null: no file at all
        QTest::addColumn<QString>("english");
        QTest::newRow("missing") << QByteArray() << "missing, reinstall";
        QTest::newRow("text file") << QByteArray("this is not a database\n") << "damaged";
        QTest::newRow("SQLite file without our tables") << QByteArray("") << "tables";
    }
    void unusableConfig()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, english);
        QTemporaryDir dir;
        const QString path = Startup::configPath(dir.path());
        QCOMPARE(QFileInfo(path).fileName(), QStringLiteral("Config.vkt"));
        if (!content.isNull() && content.isEmpty())
            QVERIFY(sqlfixture::run(path, QStringLiteral("CREATE TABLE other (x TEXT)")));
        else if (!content.isNull()) {
            QFile f(path);
            QVERIFY(f.open(QIODevice::WriteOnly));
            f.write(content);
        }
        const QByteArray before = sqlfixture::digest(path);
        FakeDialogs dialogs;
        const auto code = Startup::checkConfig(path, dialogs);
        QVERIFY(code.has_value() && *code != 0);
        QCOMPARE(dialogs.shown.size(), 1);
        // One box in the three languages, naming the file.
        const QString box = dialogs.shown.first();
        QVERIFY2(box.startsWith(QStringLiteral("critical:")), qPrintable(box));
        QVERIFY2(box.contains(content.isNull() ? QStringLiteral("Config.vkt") : QDir::toNativeSeparators(path)), qPrintable(box));
        for (const char *prefix : {"BR - ", "US - ", "ES - "})
            QVERIFY2(box.contains(QLatin1String(prefix)), qPrintable(box));
        QVERIFY2(box.contains(english, Qt::CaseInsensitive), qPrintable(box));
        QCOMPARE(sqlfixture::digest(path), before);
        QCOMPARE(QFile::exists(path), !content.isNull());
    }

    void shippedConfigStartsWithItsLanguage()
    {
        const QString shipped = QStringLiteral(VEKTO_BIN_DIR "/Config.vkt");
        QTemporaryDir dir;
        const QString path = Startup::configPath(dir.path());
        QVERIFY(QFile::copy(shipped, path));
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner);
        QVERIFY(Database(path).setIdioma(3));
        FakeDialogs dialogs;
        QCOMPARE(Startup::checkConfig(path, dialogs), std::nullopt);
        QVERIFY(dialogs.shown.isEmpty());
        Session session(path);
        Startup::initSession(session);
        QCOMPARE(session.idioma(), quint8(3));
        QCOMPARE(session.screenId(), QStringLiteral("0"));
        QVERIFY(!session.startFlag());
        QVERIFY(session.sessionStart().isValid());
    }
    void modelListAndMemory()
    {
        {
            Program p(m_path);
            auto *combo = p.find<QComboBox>("ComboAparelhos");
            QCOMPARE(combo->currentText(), QStringLiteral("IP 7"));
            combo->setCurrentText(QStringLiteral("IP 8 Plus"));
            QCOMPARE(p.session.modelo(), QStringLiteral("IP 8 Plus"));
            QCOMPARE(p.find<QComboBox>("ComboAparelhosX")->currentText(), QStringLiteral("IP 8 Plus"));
            p.inicial->close();
        }
        QCOMPARE(Database(m_path).ultimoModelo().value_or(QString()), QStringLiteral("IP 8 Plus"));
        Program again(m_path);
        QCOMPARE(again.find<QComboBox>("ComboAparelhos")->currentText(), QStringLiteral("IP 8 Plus"));
        QCOMPARE(again.session.modelo(), QStringLiteral("IP 8 Plus"));
    }

    void recognisedModelReachesBothLists()
    {
        Program p(m_path);
        emit p.connection.modelRecognised(QStringLiteral("IP X"));
        QCOMPARE(p.find<QComboBox>("ComboAparelhos")->currentText(), QStringLiteral("IP X"));
        QCOMPARE(p.find<QComboBox>("ComboAparelhosX")->currentText(), QStringLiteral("IP X"));
    }

    // The button and the status line follow the connection: "Conectando" until the phone is
    // validated, and a pulled cable said in the session language until the next try.
    void connectButtonAndStatusLine()
    {
        Program p(m_path);
        auto *button = p.find<QPushButton>("Botoes_1");
        p.port.onWrite = [&p](const QByteArray &) {
            p.port.arrive({"syscfg print RMd#\r\nA1660\n[0000001A:0000BEEF] :-) "});
        };
        p.connection.connectClicked(QStringLiteral("/dev/fake"), QStringLiteral("fake"));
        p.exchange.onTimer1();
        for (int tick = 0; tick < 3; ++tick)
            p.exchange.onTimer2();
        QCOMPARE(p.session.connectionFlag(), QStringLiteral("1"));
        QCOMPARE(button->text(), QStringLiteral("Conectando"));
        p.connection.onTimerValidaPorta();
        QCOMPARE(button->text(), QStringLiteral("Desconectar"));
        QVERIFY(p.session.connectionValidated());
        p.port.pull();
        QCOMPARE(button->text(), QStringLiteral("Conectar"));
        QCOMPARE(p.find<QLabel>("lbConexao")->text(), QStringLiteral("Conexão perdida"));
        QVERIFY(!p.session.connectionValidated());
        p.session.setIdioma(2);
        p.inicial->Traducao_Form_Inicial();
        QCOMPARE(p.find<QLabel>("lbConexao")->text(), QStringLiteral("Connection lost"));
        p.connection.connectClicked(QStringLiteral("/dev/fake"), QStringLiteral("fake"));
        QCOMPARE(p.find<QLabel>("lbConexao")->text(), QStringLiteral("Connecting"));
    }

    void openFailureShowsTheMessage()
    {
        Program p(m_path);
        p.port.openError = SerialPort::PortAlreadyOpen;
        p.connection.connectClicked(QStringLiteral("/dev/fake"), QStringLiteral("fake"));
        QCOMPARE(p.dialogs.shown, QStringList{QStringLiteral("MSG_PORTA_EM_USO")});
        QCOMPARE(p.inicial->status(), QStringLiteral("Branco"));
    }

    void menuHoldsOnlyRegisteredScreens()
    {
        Program p(m_path);
        QVERIFY(p.find<QPushButton>("Botoes_2"));
        QVERIFY(p.find<QPushButton>("Botoes_10"));
        QVERIFY(!p.find<QPushButton>("Botoes_5"));
        QVERIFY(!p.find<QPushButton>("Botoes_0"));
        QCOMPARE(p.inicial->findChildren<QPushButton *>(QRegularExpression(QStringLiteral("^Botoes_"))).size(), 3);
        QCOMPARE(p.find<QPushButton>("Botoes_2")->toolTip(), QStringLiteral("Modo Comandos e Comparador"));
        // Element 0: a screen other screens open by name, with no menu button, through a language change as well.
        p.session.setIdioma(2);
        p.inicial->Traducao_Form_Inicial();
        QVERIFY(!p.find<QPushButton>("Botoes_0"));
        QVERIFY(p.inicial->openScreen(QStringLiteral("BuckTeste")));
        QVERIFY(p.session.isOpen(QStringLiteral("BuckTeste")));

        QWidget *first = p.inicial->openScreen(QStringLiteral("Master"));
        QVERIFY(first);
        QVERIFY(p.session.isOpen(QStringLiteral("Master")));
        QCOMPARE(p.inicial->openScreen(QStringLiteral("Master")), first);
        QVERIFY(!p.inicial->openScreen(QStringLiteral("RFs")));
    }

    void placement_data()
    {
        QTest::addColumn<QSize>("wanted");
        QTest::addColumn<QSize>("minimum");
        QTest::addColumn<QPoint>("previous");
        QTest::addColumn<QRect>("expected");
        const QPoint none(-1, -1);
        const int step = Inicial::CascadeStep;
        // The frame of a 1366 x 768 display is about 1150 x 600.
        QTest::newRow("first, as asked") << QSize(900, 500) << QSize(300, 200) << none << QRect(0, 0, 900, 500);
        QTest::newRow("small screen stays small") << QSize(320, 220) << QSize(200, 150) << none << QRect(0, 0, 320, 220);
        QTest::newRow("cascaded") << QSize(900, 500) << QSize(300, 200) << QPoint(0, 0) << QRect(step, step, 900, 500);
        QTest::newRow("cascade would leave the frame") << QSize(900, 500) << QSize(300, 200) << QPoint(240, 90)
                                                       << QRect(0, 0, 900, 500);
        QTest::newRow("larger than the frame") << QSize(1400, 900) << QSize(300, 200) << none << QRect(0, 0, 1150, 600);
        QTest::newRow("content needs more than the frame") << QSize(1400, 900) << QSize(1200, 640) << none
                                                           << QRect(0, 0, 1200, 640);
    }
    void placement()
    {
        QFETCH(QSize, wanted);
        QFETCH(QSize, minimum);
        QFETCH(QPoint, previous);
        QFETCH(QRect, expected);
        QCOMPARE(Inicial::placement(wanted, minimum, QSize(1150, 600), previous), expected);
    }

    void screensCascadeAndScroll()
    {
        Program p(m_path);
        p.inicial->resize(1366, 768);
        p.inicial->show();
        QVERIFY(QTest::qWaitForWindowExposed(p.inicial.get()));
        auto *area = p.inicial->findChild<QMdiArea *>(QStringLiteral("mdiArea"));
        QVERIFY(p.inicial->openScreen(QStringLiteral("Master")));
        QVERIFY(p.inicial->openScreen(QStringLiteral("xIdioma")));
        const QList<QMdiSubWindow *> windows = area->subWindowList(QMdiArea::CreationOrder);
        QCOMPARE(windows.size(), 2);
        QCOMPARE(windows[1]->pos() - windows[0]->pos(), QPoint(Inicial::CascadeStep, Inicial::CascadeStep));
        QVERIFY(area->horizontalScrollBar()->maximum() == 0);
        // A screen larger than the frame is scrolled to, not cut off.
        QVERIFY(p.inicial->openScreen(QStringLiteral("BuckTeste")));
        QApplication::processEvents();
        QVERIFY(area->horizontalScrollBar()->maximum() > 0);
        QVERIFY(area->verticalScrollBar()->maximum() > 0);
    }

    void languageChange_data()
    {
        QTest::addColumn<quint8>("idioma");
        QTest::addColumn<QString>("connect");
        QTest::addColumn<QString>("portuguese");
        QTest::newRow("English") << quint8(2) << "Connect" << "PORTUGUESE";
        QTest::newRow("Spanish") << quint8(3) << "Conectar" << "PORTUGUÉS";
        QTest::newRow("same language again") << quint8(1) << "Conectar" << "PORTUGUÊS";
    }
    void languageChange()
    {
        QFETCH(quint8, idioma);
        QFETCH(QString, connect);
        QFETCH(QString, portuguese);
        {
            Program p(m_path);
            QVERIFY(p.inicial->openScreen(QStringLiteral("Master")));
            auto *idiomaScreen = qobject_cast<xIdioma *>(p.inicial->openScreen(QStringLiteral("xIdioma")));
            QVERIFY(idiomaScreen);
            idiomaScreen->findChild<QPushButton *>(QStringLiteral("btIdioma_%1").arg(idioma))->click();

            QVERIFY(!p.session.isOpen(QStringLiteral("Master")));
            QVERIFY(!p.inicial->screen(QStringLiteral("Master")));
            QVERIFY(p.inicial->screen(QStringLiteral("xIdioma")));
            QCOMPARE(p.session.idioma(), idioma);
            QCOMPARE(p.find<QPushButton>("Botoes_1")->text(), connect);
            QCOMPARE(idiomaScreen->findChild<QPushButton *>(QStringLiteral("btIdioma_1"))->text(), portuguese);
            // Screens opened afterwards appear in the new language.
            QVERIFY(p.inicial->openScreen(QStringLiteral("Master")));
            QVERIFY(p.dialogs.shown.isEmpty());
        }
        QCOMPARE(Database(m_path).idioma().value_or(0), idioma);
        Program next(m_path);
        QCOMPARE(next.find<QPushButton>("Botoes_1")->text(), connect);
    }

    void languageNotStoredOnAReadOnlyFile()
    {
        Program p(m_path);
        QFile::setPermissions(m_path, QFile::ReadOwner);
        if (QFileInfo(m_path).isWritable())
            QSKIP("running as a user the file permissions do not stop");
        auto *idiomaScreen = qobject_cast<xIdioma *>(p.inicial->openScreen(QStringLiteral("xIdioma")));
        idiomaScreen->btIdioma_Click(2);
        QCOMPARE(p.session.idioma(), quint8(2));
        QCOMPARE(p.dialogs.shown.size(), 1);
        QVERIFY(p.dialogs.shown.first().startsWith(QStringLiteral("critical:")));
        QCOMPARE(Database(m_path).idioma().value_or(0), quint8(1));
    }
};

QTEST_MAIN(TestInicial)
#include "tst_inicial.moc"
