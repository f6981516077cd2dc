// The command console and the administration screen it opens, against a real Config.vkt and the
// real exchange over a scripted line; and the console box, which appends answers without setting
// its whole text again: what it keeps and shows must be what setting the joined text does.

#include "ComparatorFixture.h"
#include "ConsoleTextEdit.h"
#include "Master.h"
#include "fmHelp.h"
#include "zAjustes.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <memory>

namespace {

const QString Command = QStringLiteral("nand --getinfo");
const QStringList Lines{QStringLiteral("Vendor: TOSHIBA"), QStringLiteral("Size: 64GB")};
const QStringList OtherLines{QStringLiteral("Vendor: HYNIX"), QStringLiteral("Size: 64GB")};

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
    int boxes(const char *kind) { return int(dialogs.shown.filter(QLatin1String(kind)).size()); }
    void finishExchange()
    {
        exchange.onTimer1();
        for (int i = 0; i < 60 && exchange.running(); ++i)
            exchange.onTimer2();
    }
    // The device answers the command with `lines`; the exchange is stepped to its end.
    void sendAndAnswer(const QString &command, const QStringList &lines)
    {
        type(command);
        const QByteArray bytes = fixture::deviceBytes(command, lines);
        port.onWrite = [this, bytes](const QByteArray &) {
            port.arrive({bytes});
            port.onWrite = {};
        };
        screen->send();
        finishExchange();
    }
    std::optional<DadosRecord> stored(const QString &command = Command)
    {
        return Database(path).dadosRecord(session.modelo(), command);
    }
};

// The administration screen: a model and its Plus side by side.
const QString AdminCommand = QStringLiteral("nanduid");
const QString Left = fixture::consoleAnswer(AdminCommand, {QStringLiteral("UID: 0B78BF7A")});
const QString Right = fixture::consoleAnswer(AdminCommand, {QStringLiteral("UID: 77AA0011")});

struct AdminRig : fixture::ScreenRig
{
    std::unique_ptr<zAjustes> screen;

    explicit AdminRig(const QStringList &masks = {})
    {
        {
            Database db(path);
            db.addComando(QStringLiteral("bl -n"));
            db.addComando(AdminCommand);
            db.addDados(DadosRecord{QStringLiteral("IP 7"), AdminCommand, Left, QStringLiteral("n1"), {}, {}});
            db.addDados(DadosRecord{QStringLiteral("IP 7 Plus"), AdminCommand, Right, {}, {}, {}});
            db.addDados(DadosRecord{QStringLiteral("IP X"), AdminCommand, Left, {}, {}, {}});
            for (const QString &m : masks)
                db.addMaskText(m);
        }
        session.setModelo(QStringLiteral("IP 7"));
        screen = std::make_unique<zAjustes>(ScreenContext{session, exchange, dialogs});
        child<QComboBox>("txtComandos")->setCurrentText(AdminCommand);
    }
    template<typename T> T *child(const char *name) { return screen->findChild<T *>(QLatin1String(name)); }
    ConsoleTextEdit *left() { return child<ConsoleTextEdit>("txtConsole"); }
    ConsoleTextEdit *right() { return child<ConsoleTextEdit>("txtComparador"); }
    QString stored(const QString &model) { return Database(path).dadosRecord(model, AdminCommand)->dados; }
};

} // namespace

class TestMaster : public QObject
{
    Q_OBJECT
private slots:
    void recordThenReopen()
    {
        Rig rig;
        QVERIFY(!rig.path.isEmpty());
        rig.sendAndAnswer(Command, Lines);
        const QString answer = fixture::consoleAnswer(Command, Lines);
        QCOMPARE(rig.console()->rawText(), answer);
        QVERIFY(!rig.markShown()); // nothing recorded yet
        rig.screen->recordAnswer();
        QCOMPARE(rig.stored()->dados, answer);
        QCOMPARE(rig.recorded()->rawText(), answer);
        rig.sendAndAnswer(Command, Lines);
        QVERIFY(rig.markShown());
        rig.sendAndAnswer(Command, OtherLines);
        QVERIFY(!rig.markShown());
        // Closed and opened again: the recorded answer is read back from the file as it was stored.
        rig.open();
        rig.type(Command);
        QCOMPARE(rig.recorded()->rawText(), answer);
        QCOMPARE(rig.boxes("critical:"), 0);
    }

    // Replacing or deleting a recorded answer asks first; No leaves the row as it was.
    void questionsGuardTheRecordedAnswer()
    {
        Rig rig;
        rig.sendAndAnswer(Command, Lines);
        rig.screen->recordAnswer();
        rig.sendAndAnswer(Command, OtherLines);
        rig.dialogs.answers = {false, true, false, true};
        rig.screen->recordAnswer();
        QCOMPARE(rig.stored()->dados, fixture::consoleAnswer(Command, Lines));
        rig.screen->recordAnswer();
        QCOMPARE(rig.stored()->dados, fixture::consoleAnswer(Command, OtherLines));
        QCOMPARE(Database(rig.path).allDados().size(), 1); // replaced, not added
        rig.screen->deleteRecordedAnswer();
        QVERIFY(rig.stored());
        rig.screen->deleteRecordedAnswer();
        QVERIFY(!rig.stored());
        QVERIFY(rig.recorded()->rawText().isEmpty());
        QCOMPARE(rig.boxes("question:"), 4);
    }

    void sendGuards()
    {
        Rig rig;
        rig.sendAndAnswer(Command, Lines);
        rig.screen->recordAnswer();
        rig.child<QCheckBox>("ckLimpar")->setChecked(true);
        rig.sendAndAnswer(Command, Lines);
        QVERIFY(rig.markShown());
        // Not connected: nothing sent, but the mark is hidden and looked up for the typed command.
        rig.session.setConnectionFlag(QStringLiteral("0"));
        QVERIFY(!rig.child<QPushButton>("btSend")->isEnabled());
        rig.type(QStringLiteral("no such command"));
        rig.screen->send();
        QVERIFY(!rig.markShown());
        QVERIFY(rig.recorded()->rawText().isEmpty());
        // A flag of "1" alone (the empty first answer of a silent port) does not let it send either.
        rig.session.setConnectionFlag(QStringLiteral("1"));
        QVERIFY(!rig.child<QPushButton>("btSend")->isEnabled());
        rig.screen->send();
        rig.session.setConnectionValidated(true);
        rig.type(QString());
        rig.screen->send();
        QCOMPARE(rig.port.written.size(), 2);

        rig.type(Command);
        rig.screen->send();
        QCOMPARE(rig.port.written.last(), QByteArray("nand --getinfo\r"));
        QVERIFY(rig.screen->waiting());
        QVERIFY(!rig.child<QPushButton>("btSend")->isEnabled());
        rig.screen->send(); // an exchange is running: flag "3"
        QCOMPARE(rig.port.written.size(), 3);
        rig.finishExchange();
        QVERIFY(rig.child<QPushButton>("btSend")->isEnabled());
        QCOMPARE(rig.session.screenId(), QStringLiteral("0"));
    }

    // Commands the console treats apart, in any letter case, and the restart button.
    void specialCommands_data()
    {
        QTest::addColumn<QString>("command"); // empty: the restart button
        QTest::addColumn<QList<bool>>("answers");
        QTest::addColumn<QList<QByteArray>>("written");
        QTest::addColumn<int>("infos");
        QTest::addColumn<bool>("longAnswer");
        QTest::newRow("button test") << "buttoncnt --dqe" << QList<bool>{} << QList<QByteArray>{"buttoncnt --dqe\r", "/q\r"}
                                     << 1 << false;
        QTest::newRow("long answer") << "testmemory --1MB" << QList<bool>{} << QList<QByteArray>{"testmemory --1MB\r"} << 0
                                     << true;
        QTest::newRow("restart, No") << "" << QList<bool>{false} << QList<QByteArray>{} << 0 << false;
        QTest::newRow("restart, Yes") << "" << QList<bool>{true} << QList<QByteArray>{"Reset\r"} << 0 << false;
    }
    void specialCommands()
    {
        QFETCH(QString, command);
        QFETCH(QList<bool>, answers);
        Rig rig;
        rig.dialogs.answers.assign(answers.begin(), answers.end());
        if (command.isEmpty()) {
            rig.screen->restartDevice();
        } else {
            rig.type(command);
            rig.screen->send();
        }
        QTEST(rig.port.written, "written");
        QTEST(rig.boxes("info:"), "infos");
        QTEST(rig.session.longAnswer(), "longAnswer");
    }

    void autoUncheckedAccumulates()
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

    void addAndDeleteCommand()
    {
        Rig rig;
        auto *list = rig.child<QComboBox>("txtComandos");
        rig.dialogs.inputs = {QStringLiteral("bl -n"), QStringLiteral("it's"), std::nullopt};
        for (int i = 0; i < 3; ++i)
            rig.screen->addCommand();
        QCOMPARE(Database(rig.path).comandos().size(), 1);
        QCOMPARE(list->count(), 1);
        QCOMPARE(list->currentText(), QStringLiteral("bl -n"));
        rig.dialogs.answers = {false, true};
        rig.screen->deleteCommand();
        QVERIFY(Database(rig.path).comandoExists(QStringLiteral("bl -n")));
        rig.screen->deleteCommand();
        QVERIFY(!Database(rig.path).comandoExists(QStringLiteral("bl -n")));
        QCOMPARE(list->count(), 0);
        QVERIFY(rig.dialogs.shown.filter(QStringLiteral("question:")).first().endsWith(QStringLiteral("  bl -n?")));
    }

    void quotesNeverBreakQueries()
    {
        Rig rig;
        rig.session.setModelo(QStringLiteral("IP 7'; --"));
        const QString command = QStringLiteral("echo 'x'");
        rig.sendAndAnswer(command, {QStringLiteral("x")});
        rig.screen->recordAnswer();
        QCOMPARE(rig.boxes("critical:"), 0);
        QCOMPARE(rig.stored(command)->dados, fixture::consoleAnswer(command, {QStringLiteral("x")}));
        rig.sendAndAnswer(command, {QStringLiteral("x")});
        QVERIFY(rig.markShown());
    }

    void largeAnswerStoredWhole()
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
        QCOMPARE(rig.recorded()->rawText(), big);
    }

    void failedWriteLeavesTheRow()
    {
        Rig rig;
        rig.sendAndAnswer(Command, Lines);
        rig.screen->recordAnswer();
        const auto before = rig.stored();
        QVERIFY(before);
        rig.screen.reset();
        QVERIFY(fixture::makeUnwritable(rig.path));
        rig.open();
        rig.sendAndAnswer(Command, OtherLines);
        rig.screen->recordAnswer();
        QCOMPARE(rig.boxes("critical:"), 1);
        QVERIFY(rig.stored() == before);
        QCOMPARE(rig.recorded()->rawText(), before->dados);
        rig.dialogs.inputs = {QStringLiteral("reboot")};
        rig.screen->addCommand();
        QCOMPARE(rig.boxes("critical:"), 2);
        QVERIFY(!Database(rig.path).comandoExists(QStringLiteral("reboot")));
    }

    void saveEditsWritesWhatWasEdited()
    {
        Rig rig;
        QVERIFY(Database(rig.path).addComando(ComandoRecord{Command, QStringLiteral("c1"), QStringLiteral("c2"), QStringLiteral("c3")}));
        rig.open();
        rig.sendAndAnswer(Command, Lines);
        rig.screen->recordAnswer();
        rig.child<ConsoleTextEdit>("txtInfoDados")->setPlainText(QStringLiteral("good board\nline two"));
        rig.child<ConsoleTextEdit>("txtInfoComandos2")->setPlainText(QStringLiteral("reads the NAND"));
        rig.dialogs.answers = {false};
        rig.screen->saveEdits();
        QCOMPARE(rig.stored()->info, QString());
        rig.screen->saveEdits();
        QCOMPARE(rig.stored()->info, QStringLiteral("good board\r\nline two"));
        QCOMPARE(rig.stored()->dados, fixture::consoleAnswer(Command, Lines)); // untouched, CRs and all
        const auto comando = Database(rig.path).comando(Command);
        QCOMPARE(comando->info2, QStringLiteral("reads the NAND"));
        QCOMPARE(comando->info, QStringLiteral("c1"));
    }

    void maskRecordedAnswer()
    {
        Rig rig;
        QVERIFY(Database(rig.path).addMaskText(QStringLiteral("4F2A'jox'77")));
        const QStringList lines{QStringLiteral("Serial: 4F2A77"), QStringLiteral("Size: 64GB")};
        rig.sendAndAnswer(Command, lines);
        rig.screen->recordAnswer();
        rig.sendAndAnswer(Command, lines);
        QVERIFY(!rig.markShown()); // the console side is masked, the recorded one not yet
        rig.screen->maskRecordedAnswer();
        const QString masked = rig.stored()->dados;
        QVERIFY2(masked.contains(QStringLiteral("Serial: xxxxx\u00AE\r\n")), qPrintable(masked));
        rig.sendAndAnswer(Command, lines);
        QVERIFY(rig.markShown());
        rig.screen->maskRecordedAnswer();
        QCOMPARE(rig.stored()->dados, masked);
        rig.dialogs.inputs = {QStringLiteral("Serial"), QString()};
        rig.screen->addMaskText();
        rig.screen->addMaskText();
        QCOMPARE(Database(rig.path).maskTexts(), (QStringList{QStringLiteral("Serial"), QStringLiteral("4F2A'jox'77")}));
    }

    // The note boxes of the session language show; the help PDF of that language opens, or its
    // absence is said by name.
    void perLanguage_data()
    {
        QTest::addColumn<int>("idioma");
        QTest::addColumn<QString>("suffix");
        QTest::addColumn<QString>("pdf");
        QTest::newRow("portuguese") << 1 << QString() << QStringLiteral("xEDK_BR.pdf");
        QTest::newRow("english") << 2 << QStringLiteral("2") << QStringLiteral("xEDK_USA.pdf");
        QTest::newRow("spanish") << 3 << QStringLiteral("3") << QStringLiteral("xEDK_ES.pdf");
    }
    void perLanguage()
    {
        QFETCH(int, idioma);
        QFETCH(QString, suffix);
        QFETCH(QString, pdf);
        Rig rig;
        rig.session.setIdioma(quint8(idioma));
        for (const QString &base : {QStringLiteral("txtInfoComandos"), QStringLiteral("txtInfoDados")}) {
            for (const QString &s : {QString(), QStringLiteral("2"), QStringLiteral("3")})
                QCOMPARE(!rig.screen->findChild<QWidget *>(base + s)->isHidden(), s == suffix);
        }
        rig.screen->openHelpPdf();
        QVERIFY(rig.shell.opened.isEmpty());
        const QStringList critical = rig.dialogs.shown.filter(QStringLiteral("critical:"));
        QVERIFY2(critical.size() == 1 && critical.first().contains(pdf), qPrintable(critical.join(u'\n')));
        QFile file(rig.dir.filePath(pdf));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.close();
        rig.screen->openHelpPdf();
        QCOMPARE(rig.shell.opened, QStringList{rig.dir.filePath(pdf)});
    }

    void helpWindowShowsRecordedHelp()
    {
        Rig rig;
        const QString help = fixture::consoleAnswer(QStringLiteral("Help"), {QStringLiteral("nand  -- NAND tools")});
        QVERIFY(Database(rig.path).addDados(DadosRecord{QStringLiteral("IP 7"), QStringLiteral("Help"), help, {}, {}, {}}));
        rig.screen->showHelp();
        QCOMPARE(rig.child<QComboBox>("txtComandos")->currentText(), QStringLiteral("Help"));
        QVERIFY(rig.screen->helpWindow());
        QCOMPARE(rig.screen->helpWindow()->txtConsole()->rawText(), help);
        rig.screen->showHelp(); // the same window again, not a second one
        QCOMPARE(rig.shownWindows.size(), 1);
        rig.screen->openAdjustments();
        QCOMPARE(rig.shownWindows.size(), 2);
        QVERIFY(qobject_cast<zAjustes *>(rig.shownWindows.last()));
    }

    void borderScrollBar()
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

    void saveConsoleKeepsEveryCharacter()
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
        QCOMPARE(rig.boxes("save:"), 3);
        QCOMPARE(rig.boxes("critical:"), 1);
        QCOMPARE(rig.console()->rawText(), received);
    }

    void findInConsole_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QList<bool>>("backward"); // one search per entry
        QTest::addColumn<QList<int>>("lines");     // the line of each match, -1 for none
        QTest::newRow("other case") << "toshiba" << QList<bool>{false} << QList<int>{2};
        QTest::newRow("next wraps round") << "size" << QList<bool>{false, false, false} << QList<int>{3, 5, 3};
        QTest::newRow("previous goes back from the end") << "SIZE" << QList<bool>{true, true} << QList<int>{5, 3};
        QTest::newRow("absent") << "hynix" << QList<bool>{false, false} << QList<int>{-1, -1};
    }
    void findInConsole()
    {
        QFETCH(QString, text);
        QFETCH(QList<bool>, backward);
        QFETCH(QList<int>, lines);
        Rig rig;
        rig.console()->setRawText(fixture::consoleAnswer(
            Command, {QStringLiteral("Vendor: TOSHIBA"), QStringLiteral("Size: 64GB"), QStringLiteral("vendor ok"),
                      QStringLiteral("Page size: 16K")}));
        rig.screen->showFindBar();
        QVERIFY(!rig.child<QFrame>("FrameLocalizar")->isHidden());
        rig.child<QLineEdit>("txtLocalizar")->setText(text);
        for (int i = 0; i < backward.size(); ++i) {
            QCOMPARE(rig.screen->findInConsole(backward[i]), lines[i] >= 0);
            if (lines[i] >= 0)
                QCOMPARE(rig.console()->textCursor().blockNumber(), lines[i]);
        }
    }

    void commandHistory_data()
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
    void commandHistory()
    {
        QFETCH(QStringList, sent);
        QFETCH(QString, typed);
        QFETCH(QString, keys);
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
        QTEST(seen, "shown");
        // Kept for the session: a console opened again walks the same commands.
        if (!sent.isEmpty()) {
            rig.open();
            QTest::keyClick(rig.child<QComboBox>("txtComandos"), Qt::Key_Up);
            QCOMPARE(rig.child<QComboBox>("txtComandos")->currentText(), sent.last());
        }
    }

    // --- the administration screen ------------------------------------------------------

    void adminModelAndPlusSideBySide()
    {
        AdminRig rig;
        QCOMPARE(rig.child<QComboBox>("ComboAparelhos")->currentText(), QStringLiteral("IP 7"));
        QCOMPARE(rig.left()->rawText(), Left);
        QCOMPARE(rig.right()->rawText(), Right);
        QCOMPARE(rig.child<QLabel>("Label1")->text(), QStringLiteral("IP 7"));
        QCOMPARE(rig.child<QLabel>("Label2")->text(), QStringLiteral("IP 7 Plus"));

        rig.child<QComboBox>("ComboAparelhos")->setCurrentText(QStringLiteral("IP X"));
        QCOMPARE(rig.left()->rawText(), Left);
        QVERIFY(rig.right()->rawText().isEmpty()); // there is no "IP X Plus"
        QVERIFY(rig.child<QLabel>("Label2")->text().isEmpty());

        rig.child<QComboBox>("txtComandos")->setCurrentText(QStringLiteral("bl -n"));
        QVERIFY(rig.left()->rawText().isEmpty());
    }

    void adminSaveWritesBothSides()
    {
        AdminRig rig;
        rig.left()->setPlainText(QStringLiteral("edited\nleft"));
        rig.right()->appendRaw(QStringLiteral("\r\nmore"));
        QVERIFY(rig.screen->save());
        QCOMPARE(rig.stored(QStringLiteral("IP 7")), QStringLiteral("edited\r\nleft"));
        QCOMPARE(rig.stored(QStringLiteral("IP 7 Plus")), Right + QStringLiteral("\r\nmore"));
        QCOMPARE(Database(rig.path).dadosRecord(QStringLiteral("IP 7"), AdminCommand)->info, QStringLiteral("n1"));
        QVERIFY(rig.child<QLabel>("lbSalvo")->text().startsWith(rig.session.Traduz(QStringLiteral("Salvo "))));
        QVERIFY(rig.child<QLabel>("lbSalvo")->text().contains(u':'));
    }

    void adminCopyDoesNotSave()
    {
        AdminRig rig;
        rig.screen->copyLeftToRight();
        QCOMPARE(rig.right()->rawText(), Left);
        QCOMPARE(rig.stored(QStringLiteral("IP 7 Plus")), Right);
        rig.right()->setRawText(Right);
        rig.screen->copyRightToLeft();
        QCOMPARE(rig.left()->rawText(), Right);
        QCOMPARE(rig.stored(QStringLiteral("IP 7")), Left);
        QVERIFY(rig.screen->save());
        QCOMPARE(rig.stored(QStringLiteral("IP 7")), Right);
    }

    void adminMaskingUsesStoredTexts()
    {
        // "77'jox'AA" would mask the right side in the console; here it is taken as it stands.
        AdminRig rig({QStringLiteral("0b78bf7a"), QStringLiteral("77'jox'AA")});
        rig.screen->maskLeft();
        const QString masked = rig.stored(QStringLiteral("IP 7"));
        QCOMPARE(masked, QString(Left).replace(QStringLiteral("0B78BF7A"), QStringLiteral("xxxxx\u00AE")));
        rig.screen->maskLeft();
        QCOMPARE(rig.stored(QStringLiteral("IP 7")), masked);

        rig.screen->maskRight();
        QCOMPARE(rig.stored(QStringLiteral("IP 7 Plus")), Right);

        rig.dialogs.inputs = {QStringLiteral("77AA"), std::nullopt};
        rig.screen->addMaskText();
        rig.screen->addMaskText();
        rig.screen->maskRight();
        QCOMPARE(rig.stored(QStringLiteral("IP 7 Plus")), QString(Right).replace(QStringLiteral("77AA"), QStringLiteral("xxxxx\u00AE")));
    }

    void adminFailedSaveLeavesTheRows()
    {
        AdminRig rig;
        rig.screen.reset();
        QVERIFY(fixture::makeUnwritable(rig.path));
        rig.screen = std::make_unique<zAjustes>(ScreenContext{rig.session, rig.exchange, rig.dialogs});
        rig.child<QComboBox>("txtComandos")->setCurrentText(AdminCommand);
        rig.left()->setPlainText(QStringLiteral("lost"));
        QVERIFY(!rig.screen->save());
        QCOMPARE(rig.dialogs.shown.filter(QStringLiteral("critical:")).size(), 1);
        QVERIFY(rig.child<QLabel>("lbSalvo")->text().isEmpty());
        QCOMPARE(rig.stored(QStringLiteral("IP 7")), Left);
        QCOMPARE(rig.left()->rawText(), QStringLiteral("lost")); // the edit is still there to retry
    }

    // --- the console box ---------------------------------------------------------------------

    void appendingEqualsSettingTheWhole_data()
    {
        QTest::addColumn<QStringList>("pieces");
        QTest::newRow("answers one after the other")
            << QStringList{"\r\nnand --getinfo\r\r\nVendor: TOSHIBA\r\n[0000002a:0000001b] :-) ",
                           "\r\n\r\nbl -n\r\r\nBacklight 0\r\n[0000002a:0000001b] :-) "};
        QTest::newRow("CR LF split between two appends") << QStringList{"line one\r", "\nline two"};
        QTest::newRow("the echo's CR CR LF split") << QStringList{"cmd\r", "\r", "\nvalue\r\n"};
        QTest::newRow("empty pieces") << QStringList{QString(), "a\r\nb", QString()};
        QTest::newRow("text beyond Latin") << QStringList{"Tensão ", "\U0001F600\r\n", "Σ"};
    }
    void appendingEqualsSettingTheWhole()
    {
        QFETCH(QStringList, pieces);
        ConsoleTextEdit appended;
        ConsoleTextEdit whole;
        appended.setRawText(QStringLiteral("earlier\r\n"));
        const quint64 revision = appended.revision();
        for (const QString &piece : pieces)
            appended.appendRaw(piece);
        whole.setRawText(QStringLiteral("earlier\r\n") + pieces.join(QString()));
        QCOMPARE(appended.rawText(), whole.rawText());
        QCOMPARE(appended.toPlainText(), whole.toPlainText());
        // Appends keep the revision: a masked copy of the text may be extended, not redone.
        QCOMPARE(appended.revision(), revision);
        appended.setRawText(QStringLiteral("new"));
        QVERIFY(appended.revision() != revision);
        const quint64 set = appended.revision();
        appended.insertPlainText(QStringLiteral("typed")); // a user edit
        QVERIFY(appended.revision() != set);
        QCOMPARE(appended.rawText(), appended.toPlainText().replace(u'\n', QStringLiteral("\r\n")));
    }
};

QTEST_MAIN(TestMaster)
#include "tst_master.moc"
