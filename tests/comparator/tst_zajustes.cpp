// The administration screen on a real Config.vkt: a model and its Plus side by side, saving,
// masking with the stored texts as they stand, copying without saving.

#include "ComparatorFixture.h"
#include "ConsoleExchange.h"
#include "ConsoleTextEdit.h"
#include "FakeDialogs.h"
#include "FakeSerialPort.h"
#include "Session.h"
#include "zAjustes.h"

#include <QComboBox>
#include <QLabel>
#include <QTest>
#include <memory>

namespace {

const QString Command = QStringLiteral("nanduid");
const QString Left = fixture::consoleAnswer(Command, {QStringLiteral("UID: 0B78BF7A")});
const QString Right = fixture::consoleAnswer(Command, {QStringLiteral("UID: 77AA0011")});

struct Rig : fixture::ScreenRig
{
    std::unique_ptr<zAjustes> screen;

    explicit Rig(const QStringList &masks = {})
    {
        {
            Database db(path);
            db.addComando(QStringLiteral("bl -n"));
            db.addComando(Command);
            db.addDados(DadosRecord{QStringLiteral("IP 7"), Command, Left, QStringLiteral("n1"), {}, {}});
            db.addDados(DadosRecord{QStringLiteral("IP 7 Plus"), Command, Right, {}, {}, {}});
            db.addDados(DadosRecord{QStringLiteral("IP X"), Command, Left, {}, {}, {}});
            for (const QString &m : masks)
                db.addMaskText(m);
        }
        session.setModelo(QStringLiteral("IP 7"));
        screen = std::make_unique<zAjustes>(ScreenContext{session, exchange, dialogs});
        child<QComboBox>("txtComandos")->setCurrentText(Command);
    }
    template<typename T> T *child(const char *name) { return screen->findChild<T *>(QLatin1String(name)); }
    ConsoleTextEdit *left() { return child<ConsoleTextEdit>("txtConsole"); }
    ConsoleTextEdit *right() { return child<ConsoleTextEdit>("txtComparador"); }
    QString stored(const QString &model) { return Database(path).dadosRecord(model, Command)->dados; }
};

} // namespace

class TestZAjustes : public QObject
{
    Q_OBJECT
private slots:
    void modelAndPlusSideBySide();
    void saveWritesBothSides();
    void copyDoesNotSave();
    void maskingUsesStoredTexts();
    void failedSaveLeavesTheRows();
};

void TestZAjustes::modelAndPlusSideBySide()
{
    Rig rig;
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

void TestZAjustes::saveWritesBothSides()
{
    Rig rig;
    rig.left()->setPlainText(QStringLiteral("edited\nleft"));
    rig.right()->appendRaw(QStringLiteral("\r\nmore"));
    QVERIFY(rig.screen->save());
    QCOMPARE(rig.stored(QStringLiteral("IP 7")), QStringLiteral("edited\r\nleft"));
    QCOMPARE(rig.stored(QStringLiteral("IP 7 Plus")), Right + QStringLiteral("\r\nmore"));
    QCOMPARE(Database(rig.path).dadosRecord(QStringLiteral("IP 7"), Command)->info, QStringLiteral("n1"));
    QVERIFY(rig.child<QLabel>("lbSalvo")->text().startsWith(rig.session.Traduz(QStringLiteral("Salvo "))));
    QVERIFY(rig.child<QLabel>("lbSalvo")->text().contains(u':'));
}

void TestZAjustes::copyDoesNotSave()
{
    Rig rig;
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

void TestZAjustes::maskingUsesStoredTexts()
{
    // "77'jox'AA" would mask the right side in the console; here it is taken as it stands.
    Rig rig({QStringLiteral("0b78bf7a"), QStringLiteral("77'jox'AA")});
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

void TestZAjustes::failedSaveLeavesTheRows()
{
    Rig rig;
    rig.screen.reset();
    QVERIFY(fixture::makeUnwritable(rig.path));
    rig.screen = std::make_unique<zAjustes>(ScreenContext{rig.session, rig.exchange, rig.dialogs});
    rig.child<QComboBox>("txtComandos")->setCurrentText(Command);
    rig.left()->setPlainText(QStringLiteral("lost"));
    QVERIFY(!rig.screen->save());
    QCOMPARE(rig.dialogs.shown.filter(QStringLiteral("critical:")).size(), 1);
    QVERIFY(rig.child<QLabel>("lbSalvo")->text().isEmpty());
    QCOMPARE(rig.stored(QStringLiteral("IP 7")), Left);
    QCOMPARE(rig.left()->rawText(), QStringLiteral("lost")); // the edit is still there to retry
}

QTEST_MAIN(TestZAjustes)
#include "tst_zajustes.moc"
