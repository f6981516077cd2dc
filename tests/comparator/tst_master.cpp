// The command console against a real Config.vkt and the real exchange over a scripted line.

#include "ComparatorFixture.h"
#include "ConsoleExchange.h"
#include "ConsoleTextEdit.h"
#include "FakeDialogs.h"
#include "FakeSerialPort.h"
#include "Master.h"
#include "Session.h"
#include "fmHelp.h"
#include "zAjustes.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <memory>

namespace {

const QString Command = QStringLiteral("nand --getinfo");
const QStringList Lines{QStringLiteral("Vendor: TOSHIBA"), QStringLiteral("Size: 64GB")};

// One console on one file: session, scripted line, exchange, boxes and the screen.
struct Rig : fixture::ScreenRig
{
    FakeShell shell;
    QList<QWidget *> shownWindows;
    std::unique_ptr<Master> screen;

    Rig()
    {
        port.open(QStringLiteral("sim"));
        session.setConnectionFlag(QStringLiteral("1"));
        session.setConnectionValidated(true);
        session.setModelo(QStringLiteral("IP 7"));
        open();
    }
    ~Rig()
    {
        screen.reset();
        qDeleteAll(shownWindows);
    }
    void open()
    {
        screen.reset();
        screen = std::make_unique<Master>(ScreenContext{session, exchange, dialogs}, shell,
                                          [this](QWidget *w) { shownWindows << w; });
    }
    template<typename T> T *child(const char *name) { return screen->findChild<T *>(QLatin1String(name)); }
    ConsoleTextEdit *console() { return child<ConsoleTextEdit>("txtConsole"); }
    ConsoleTextEdit *recorded() { return child<ConsoleTextEdit>("txtComparador"); }
    bool markShown() { return !child<QFrame>("lbAutoComparador")->isHidden(); }
    void type(const QString &command) { child<QComboBox>("txtComandos")->setEditText(command); }
    // The device answers `bytes` to the next write; the exchange is stepped to its end.
    void answerNextWith(const QByteArray &bytes)
    {
        port.onWrite = [this, bytes](const QByteArray &) {
            port.arrive({bytes});
            port.onWrite = {};
        };
    }
    void finishExchange()
    {
        exchange.onTimer1();
        for (int i = 0; i < 60 && exchange.running(); ++i)
            exchange.onTimer2();
    }
    void sendAndAnswer(const QString &command, const QStringList &lines)
    {
        type(command);
        answerNextWith(fixture::deviceBytes(command, lines));
        screen->send();
        finishExchange();
    }
    Database db() const { return Database(path); }
};

} // namespace

class TestMaster : public QObject
{
    Q_OBJECT
private slots:
    void recordThenReopen();
    void replacingAsksFirst();
    void sendGuards();
    void refusedSendHidesTheMark();
    void buttonTestInAnyCase();
    void longAnswerCommandsSetTheFlag();
    void autoUncheckedAccumulates();
    void addAndDeleteCommand();
    void quotesNeverBreakQueries();
    void largeAnswerStoredWhole();
    void failedWriteLeavesTheRow();
    void deleteRecordedAnswer();
    void saveEditsWritesWhatWasEdited();
    void maskRecordedAnswer();
    void languageBoxes_data();
    void languageBoxes();
    void helpPdf_data();
    void helpPdf();
    void helpWindowShowsRecordedHelp();
    void restartAsksFirst();
    void borderScrollBar();
    void saveConsoleKeepsEveryCharacter();
    void findInConsole_data();
    void findInConsole();
    void commandHistory_data();
    void commandHistory();
};

void TestMaster::recordThenReopen()
{
    Rig rig;
    QVERIFY(!rig.path.isEmpty());
    rig.sendAndAnswer(Command, Lines);
    const QString answer = fixture::consoleAnswer(Command, Lines);
    QCOMPARE(rig.console()->rawText(), answer);
    QVERIFY(!rig.markShown()); // nothing recorded yet

    rig.screen->recordAnswer();
    QCOMPARE(rig.db().dadosRecord(QStringLiteral("IP 7"), Command)->dados, answer);
    QCOMPARE(rig.recorded()->rawText(), answer);

    rig.sendAndAnswer(Command, Lines);
    QVERIFY(rig.markShown());
    QStringList changed = Lines;
    changed[1] = QStringLiteral("Size: 32GB");
    rig.sendAndAnswer(Command, changed);
    QVERIFY(!rig.markShown());

    // Closed and opened again: the recorded answer is read back from the file as it was stored.
    rig.open();
    rig.type(Command);
    QCOMPARE(rig.recorded()->rawText(), answer);
    QVERIFY(rig.dialogs.shown.filter(QStringLiteral("critical:")).isEmpty());
}

void TestMaster::replacingAsksFirst()
{
    Rig rig;
    rig.sendAndAnswer(Command, Lines);
    rig.screen->recordAnswer();
    QStringList other = Lines;
    other[0] = QStringLiteral("Vendor: HYNIX");
    rig.sendAndAnswer(Command, other);

    rig.dialogs.answers = {false};
    rig.screen->recordAnswer();
    QCOMPARE(rig.dialogs.shown.filter(QStringLiteral("question:")).size(), 1);
    QCOMPARE(rig.db().dadosRecord(QStringLiteral("IP 7"), Command)->dados, fixture::consoleAnswer(Command, Lines));

    rig.dialogs.answers = {true};
    rig.screen->recordAnswer();
    QCOMPARE(rig.db().dadosRecord(QStringLiteral("IP 7"), Command)->dados, fixture::consoleAnswer(Command, other));
    QCOMPARE(rig.db().allDados().size(), 1); // replaced, not added
}

void TestMaster::sendGuards()
{
    Rig rig;
    rig.session.setConnectionFlag(QStringLiteral("0"));
    rig.type(Command);
    rig.screen->send();
    QVERIFY(rig.port.written.isEmpty());

    rig.session.setConnectionFlag(QStringLiteral("1"));
    rig.session.setConnectionValidated(true);
    rig.type(QString());
    rig.screen->send();
    QVERIFY(rig.port.written.isEmpty());

    rig.type(Command);
    rig.screen->send();
    QCOMPARE(rig.port.written, QList<QByteArray>{"nand --getinfo\r"});
    QVERIFY(rig.screen->waiting());
    QVERIFY(!rig.child<QPushButton>("btSend")->isEnabled());
    rig.screen->send(); // an exchange is running: flag "3"
    QCOMPARE(rig.port.written.size(), 1);
    rig.finishExchange();
    QVERIFY(rig.child<QPushButton>("btSend")->isEnabled());
    QCOMPARE(rig.session.screenId(), QStringLiteral("0"));
}

// Hidden and looked up again whether or not anything was sent: no stale mark from before.
void TestMaster::refusedSendHidesTheMark()
{
    Rig rig;
    rig.sendAndAnswer(Command, Lines);
    rig.screen->recordAnswer();
    rig.child<QCheckBox>("ckLimpar")->setChecked(true);
    rig.sendAndAnswer(Command, Lines);
    QVERIFY(rig.markShown());

    rig.session.setConnectionFlag(QStringLiteral("0"));
    QVERIFY(!rig.child<QPushButton>("btSend")->isEnabled());
    rig.type(QStringLiteral("no such command"));
    rig.screen->send();
    QVERIFY(!rig.markShown());
    QVERIFY(rig.recorded()->rawText().isEmpty()); // the lookup ran for the typed command
    QCOMPARE(rig.port.written.size(), 2);

    // A flag of "1" alone (the empty first answer of a silent port) does not let it send either.
    rig.session.setConnectionFlag(QStringLiteral("1"));
    QVERIFY(!rig.child<QPushButton>("btSend")->isEnabled());
    rig.screen->send();
    QCOMPARE(rig.port.written.size(), 2);
}

void TestMaster::buttonTestInAnyCase()
{
    Rig rig;
    rig.type(QStringLiteral("buttoncnt --dqe"));
    rig.screen->send();
    QCOMPARE(rig.dialogs.shown.filter(QStringLiteral("info:")).size(), 1);
    QCOMPARE(rig.port.written, (QList<QByteArray>{"buttoncnt --dqe\r", "/q\r"}));
}

void TestMaster::longAnswerCommandsSetTheFlag()
{
    Rig rig;
    rig.type(QStringLiteral("testmemory --1MB"));
    rig.screen->send();
    QVERIFY(rig.session.longAnswer());
}

void TestMaster::autoUncheckedAccumulates()
{
    Rig rig;
    rig.sendAndAnswer(Command, Lines);
    rig.screen->recordAnswer();
    rig.child<QCheckBox>("ckLimpar")->setChecked(false);
    rig.sendAndAnswer(Command, Lines);
    const QString answer = fixture::consoleAnswer(Command, Lines);
    QCOMPARE(rig.console()->rawText(), answer + QStringLiteral("\r\n") + answer);
    QVERIFY(!rig.markShown());
    rig.screen->clearConsole();
    QVERIFY(rig.console()->rawText().isEmpty());
}

void TestMaster::addAndDeleteCommand()
{
    Rig rig;
    auto *list = rig.child<QComboBox>("txtComandos");
    rig.dialogs.inputs = {QStringLiteral("bl -n"), QStringLiteral("it's"), std::nullopt};
    rig.screen->addCommand();
    rig.screen->addCommand();
    rig.screen->addCommand();
    QVERIFY(rig.db().comandoExists(QStringLiteral("bl -n")));
    QCOMPARE(rig.db().comandos().size(), 1);
    QCOMPARE(list->count(), 1);
    QCOMPARE(list->currentText(), QStringLiteral("bl -n"));

    rig.dialogs.answers = {false, true};
    rig.screen->deleteCommand();
    QVERIFY(rig.db().comandoExists(QStringLiteral("bl -n")));
    rig.screen->deleteCommand();
    QVERIFY(!rig.db().comandoExists(QStringLiteral("bl -n")));
    QCOMPARE(list->count(), 0);
    const QStringList questions = rig.dialogs.shown.filter(QStringLiteral("question:"));
    QCOMPARE(questions.size(), 2);
    QVERIFY(questions.first().endsWith(QStringLiteral("  bl -n?")));
}

void TestMaster::quotesNeverBreakQueries()
{
    Rig rig;
    rig.session.setModelo(QStringLiteral("IP 7'; --"));
    const QString command = QStringLiteral("echo 'x'");
    rig.sendAndAnswer(command, {QStringLiteral("x")});
    rig.screen->recordAnswer();
    QVERIFY(rig.dialogs.shown.filter(QStringLiteral("critical:")).isEmpty());
    QCOMPARE(rig.db().dadosRecord(QStringLiteral("IP 7'; --"), command)->dados,
             fixture::consoleAnswer(command, {QStringLiteral("x")}));
    rig.sendAndAnswer(command, {QStringLiteral("x")});
    QVERIFY(rig.markShown());
}

void TestMaster::largeAnswerStoredWhole()
{
    Rig rig;
    // Far more than 50 slices of 500 ms at line rate would ever bring in.
    QStringList lines;
    for (int i = 0; i < 40000; ++i)
        lines << QStringLiteral("line %1 0123456789abcdef").arg(i);
    const QString big = fixture::consoleAnswer(Command, lines);
    QVERIFY(big.size() > 50 * 5800);
    rig.type(Command);
    rig.console()->setRawText(big);
    rig.screen->recordAnswer();
    rig.open();
    rig.type(Command);
    QCOMPARE(rig.recorded()->rawText().size(), big.size());
    QCOMPARE(rig.recorded()->rawText(), big);
}

void TestMaster::failedWriteLeavesTheRow()
{
    Rig rig;
    rig.sendAndAnswer(Command, Lines);
    rig.screen->recordAnswer();
    const auto before = rig.db().dadosRecord(QStringLiteral("IP 7"), Command);
    QVERIFY(before);

    rig.screen.reset();
    QVERIFY(fixture::makeUnwritable(rig.path));
    rig.open();
    QStringList other = Lines;
    other[0] = QStringLiteral("Vendor: HYNIX");
    rig.sendAndAnswer(Command, other);
    rig.dialogs.answers = {true};
    rig.screen->recordAnswer();
    QCOMPARE(rig.dialogs.shown.filter(QStringLiteral("critical:")).size(), 1);
    QVERIFY(rig.db().dadosRecord(QStringLiteral("IP 7"), Command) == before);
    QCOMPARE(rig.recorded()->rawText(), before->dados);

    rig.dialogs.inputs = {QStringLiteral("reboot")};
    rig.screen->addCommand();
    QCOMPARE(rig.dialogs.shown.filter(QStringLiteral("critical:")).size(), 2);
    QVERIFY(!rig.db().comandoExists(QStringLiteral("reboot")));
}

void TestMaster::deleteRecordedAnswer()
{
    Rig rig;
    rig.sendAndAnswer(Command, Lines);
    rig.screen->recordAnswer();
    rig.dialogs.answers = {false, true};
    rig.screen->deleteRecordedAnswer();
    QVERIFY(rig.db().dadosRecord(QStringLiteral("IP 7"), Command));
    rig.screen->deleteRecordedAnswer();
    QVERIFY(!rig.db().dadosRecord(QStringLiteral("IP 7"), Command));
    QVERIFY(rig.recorded()->rawText().isEmpty());
}

void TestMaster::saveEditsWritesWhatWasEdited()
{
    Rig rig;
    {
        Database db(rig.path);
        QVERIFY(db.addComando(ComandoRecord{Command, QStringLiteral("c1"), QStringLiteral("c2"), QStringLiteral("c3")}));
    }
    rig.open();
    rig.sendAndAnswer(Command, Lines);
    rig.screen->recordAnswer();
    rig.child<ConsoleTextEdit>("txtInfoDados")->setPlainText(QStringLiteral("good board\nline two"));
    rig.child<ConsoleTextEdit>("txtInfoComandos2")->setPlainText(QStringLiteral("reads the NAND"));

    rig.dialogs.answers = {false};
    rig.screen->saveEdits();
    QCOMPARE(rig.db().dadosRecord(QStringLiteral("IP 7"), Command)->info, QString());

    rig.dialogs.answers = {true};
    rig.screen->saveEdits();
    const auto dados = rig.db().dadosRecord(QStringLiteral("IP 7"), Command);
    QCOMPARE(dados->info, QStringLiteral("good board\r\nline two"));
    QCOMPARE(dados->dados, fixture::consoleAnswer(Command, Lines)); // untouched, CRs and all
    QCOMPARE(rig.db().comando(Command)->info2, QStringLiteral("reads the NAND"));
    QCOMPARE(rig.db().comando(Command)->info, QStringLiteral("c1"));
}

void TestMaster::maskRecordedAnswer()
{
    Rig rig;
    {
        Database db(rig.path);
        QVERIFY(db.addMaskText(QStringLiteral("4F2A'jox'77")));
    }
    const QStringList lines{QStringLiteral("Serial: 4F2A77"), QStringLiteral("Size: 64GB")};
    rig.sendAndAnswer(Command, lines);
    rig.screen->recordAnswer();
    rig.sendAndAnswer(Command, lines);
    QVERIFY(!rig.markShown()); // the console side is masked, the recorded one not yet

    rig.screen->maskRecordedAnswer();
    const QString masked = rig.db().dadosRecord(QStringLiteral("IP 7"), Command)->dados;
    QVERIFY2(masked.contains(QStringLiteral("Serial: xxxxx\u00AE\r\n")), qPrintable(masked));
    rig.sendAndAnswer(Command, lines);
    QVERIFY(rig.markShown());
    rig.screen->maskRecordedAnswer();
    QCOMPARE(rig.db().dadosRecord(QStringLiteral("IP 7"), Command)->dados, masked);

    rig.dialogs.inputs = {QStringLiteral("Serial"), QString()};
    rig.screen->addMaskText();
    rig.screen->addMaskText();
    QCOMPARE(rig.db().maskTexts(), (QStringList{QStringLiteral("Serial"), QStringLiteral("4F2A'jox'77")}));
}

void TestMaster::languageBoxes_data()
{
    QTest::addColumn<int>("idioma");
    QTest::addColumn<QString>("suffix");
    QTest::newRow("portuguese") << 1 << QString();
    QTest::newRow("english") << 2 << QStringLiteral("2");
    QTest::newRow("spanish") << 3 << QStringLiteral("3");
}

void TestMaster::languageBoxes()
{
    QFETCH(int, idioma);
    QFETCH(QString, suffix);
    Rig rig;
    rig.session.setIdioma(quint8(idioma));
    for (const QString &base : {QStringLiteral("txtInfoComandos"), QStringLiteral("txtInfoDados")}) {
        for (const QString &s : {QString(), QStringLiteral("2"), QStringLiteral("3")}) {
            auto *box = rig.screen->findChild<QWidget *>(base + s);
            QVERIFY(box);
            QCOMPARE(!box->isHidden(), s == suffix);
        }
    }
}

void TestMaster::helpPdf_data()
{
    QTest::addColumn<int>("idioma");
    QTest::addColumn<QString>("file");
    QTest::newRow("portuguese") << 1 << QStringLiteral("xEDK_BR.pdf");
    QTest::newRow("english") << 2 << QStringLiteral("xEDK_USA.pdf");
    QTest::newRow("spanish") << 3 << QStringLiteral("xEDK_ES.pdf");
}

void TestMaster::helpPdf()
{
    QFETCH(int, idioma);
    QFETCH(QString, file);
    Rig rig;
    rig.session.setIdioma(quint8(idioma));
    rig.screen->openHelpPdf();
    QVERIFY(rig.shell.opened.isEmpty());
    const QStringList critical = rig.dialogs.shown.filter(QStringLiteral("critical:"));
    QCOMPARE(critical.size(), 1);
    QVERIFY2(critical.first().contains(file), qPrintable(critical.first()));

    QFile pdf(rig.dir.filePath(file));
    QVERIFY(pdf.open(QIODevice::WriteOnly));
    pdf.close();
    rig.screen->openHelpPdf();
    QCOMPARE(rig.shell.opened, QStringList{rig.dir.filePath(file)});
}

void TestMaster::helpWindowShowsRecordedHelp()
{
    Rig rig;
    const QString help = fixture::consoleAnswer(QStringLiteral("Help"), {QStringLiteral("nand  -- NAND tools")});
    {
        Database db(rig.path);
        QVERIFY(db.addDados(DadosRecord{QStringLiteral("IP 7"), QStringLiteral("Help"), help, {}, {}, {}}));
    }
    rig.screen->showHelp();
    QCOMPARE(rig.child<QComboBox>("txtComandos")->currentText(), QStringLiteral("Help"));
    QVERIFY(rig.screen->helpWindow());
    QCOMPARE(rig.shownWindows.size(), 1);
    QCOMPARE(rig.screen->helpWindow()->txtConsole()->rawText(), help);
    rig.screen->showHelp(); // the same window again, not a second one
    QCOMPARE(rig.shownWindows.size(), 1);

    rig.screen->openAdjustments();
    QCOMPARE(rig.shownWindows.size(), 2);
    QVERIFY(qobject_cast<zAjustes *>(rig.shownWindows.last()));
}

void TestMaster::restartAsksFirst()
{
    Rig rig;
    rig.dialogs.answers = {false, true};
    rig.screen->restartDevice();
    QVERIFY(rig.port.written.isEmpty());
    rig.screen->restartDevice();
    QCOMPARE(rig.port.written, QList<QByteArray>{"Reset\r"});
}

void TestMaster::borderScrollBar()
{
    Rig rig;
    rig.screen->resize(1200, 700);
    rig.screen->show();
    QVERIFY(QTest::qWaitForWindowExposed(rig.screen.get()));
    auto *bar = rig.child<QScrollBar>("HScroll1");
    QCOMPARE(bar->value(), bar->maximum());
    QVERIFY(rig.console()->width() > rig.recorded()->width());
    // Even at its narrowest the recorded answer keeps a readable share of the row.
    QVERIFY(rig.recorded()->width() * 3 > rig.console()->width());
    bar->setValue(bar->minimum());
    QApplication::processEvents();
    QVERIFY(rig.console()->width() < rig.recorded()->width());

    const int before = rig.console()->height();
    rig.screen->resize(1200, 900);
    QApplication::processEvents();
    QVERIFY(rig.console()->height() > before);
    QVERIFY(bar->geometry().top() > rig.console()->geometry().bottom());
}

void TestMaster::saveConsoleKeepsEveryCharacter()
{
    Rig rig;
    const QString received = fixture::consoleAnswer(Command, {QStringLiteral("Größe: 64GB \uFFFD\x1b"),
                                                              QStringLiteral("lone\rCR")});
    rig.console()->setRawText(received);
    const QString path = rig.dir.filePath(QStringLiteral("sent-to-support.txt"));
    rig.dialogs.saveNames = {path};
    rig.screen->saveConsole();
    QFile saved(path);
    QVERIFY(saved.open(QIODevice::ReadOnly));
    QCOMPARE(saved.readAll(), received.toUtf8());

    // Cancelled: nothing written; an unwritable place: said so, the console kept.
    rig.screen->saveConsole();
    rig.dialogs.saveNames = {rig.dir.filePath(QStringLiteral("no/such/folder/x.txt"))};
    rig.screen->saveConsole();
    QCOMPARE(rig.dialogs.shown.filter(QStringLiteral("save:")).size(), 3);
    QCOMPARE(rig.dialogs.shown.filter(QStringLiteral("critical:")).size(), 1);
    QCOMPARE(rig.console()->rawText(), received);
}

void TestMaster::findInConsole_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QList<bool>>("backward"); // one search per entry
    QTest::addColumn<QList<int>>("lines");     // the line of each match, -1 for none
    const QList<bool> f{false}, ff{false, false}, fff{false, false, false};
    QTest::newRow("other case") << "toshiba" << f << QList<int>{2};
    QTest::newRow("next wraps round") << "size" << fff << QList<int>{3, 5, 3};
    QTest::newRow("previous goes back from the end") << "SIZE" << QList<bool>{true, true} << QList<int>{5, 3};
    QTest::newRow("absent") << "hynix" << ff << QList<int>{-1, -1};
}

void TestMaster::findInConsole()
{
    QFETCH(QString, text);
    QFETCH(QList<bool>, backward);
    QFETCH(QList<int>, lines);
    Rig rig;
    rig.console()->setRawText(fixture::consoleAnswer(
        Command, {QStringLiteral("Vendor: TOSHIBA"), QStringLiteral("Size: 64GB"), QStringLiteral("vendor ok"),
                  QStringLiteral("Page size: 16K")}));
    auto *field = rig.child<QLineEdit>("txtLocalizar");
    rig.screen->showFindBar();
    QVERIFY(!rig.child<QFrame>("FrameLocalizar")->isHidden());
    field->setText(text);
    for (int i = 0; i < backward.size(); ++i) {
        const bool found = rig.screen->findInConsole(backward[i]);
        QCOMPARE(found, lines[i] >= 0);
        if (found)
            QCOMPARE(rig.console()->textCursor().blockNumber(), lines[i]);
    }
}

void TestMaster::commandHistory_data()
{
    QTest::addColumn<QStringList>("sent");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("keys"); // u: Up, d: Down
    QTest::addColumn<QStringList>("shown");
    const QStringList three{"nanduid", "bl -n", "nandsize"};
    QTest::newRow("up walks back and stops at the oldest") << three << "" << "uuuu"
                                                           << QStringList{"nandsize", "bl -n", "nanduid", "nanduid"};
    QTest::newRow("down comes back to what was typed") << three << "nand" << "uudd"
                                                       << QStringList{"nandsize", "bl -n", "nandsize", "nand"};
    QTest::newRow("a repeated command once") << QStringList{"Help", "Help", "bl -n"} << "" << "uuu"
                                             << QStringList{"bl -n", "Help", "Help"};
    QTest::newRow("nothing sent yet") << QStringList{} << "bl" << "ud" << QStringList{"bl", "bl"};
}

void TestMaster::commandHistory()
{
    QFETCH(QStringList, sent);
    QFETCH(QString, typed);
    QFETCH(QString, keys);
    QFETCH(QStringList, shown);
    Rig rig;
    for (const QString &command : sent)
        rig.sendAndAnswer(command, {QStringLiteral("ok")});
    auto *field = rig.child<QComboBox>("txtComandos");
    rig.type(typed);
    QStringList seen;
    for (const QChar key : keys) {
        QTest::keyClick(field, key == u'u' ? Qt::Key_Up : Qt::Key_Down);
        seen << field->currentText();
    }
    QCOMPARE(seen, shown);
    // Kept for the session: a console opened again walks the same commands.
    if (!sent.isEmpty()) {
        rig.open();
        QTest::keyClick(rig.child<QComboBox>("txtComandos"), Qt::Key_Up);
        QCOMPARE(rig.child<QComboBox>("txtComandos")->currentText(), sent.last());
    }
}

QTEST_MAIN(TestMaster)
#include "tst_master.moc"
