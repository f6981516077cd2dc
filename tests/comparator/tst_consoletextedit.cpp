// The console box appends answers without setting its whole text again: what it keeps and shows
// after appends must be what setting the joined text keeps and shows.

#include "ConsoleTextEdit.h"

#include <QTest>

class TestConsoleTextEdit : public QObject
{
    Q_OBJECT
private slots:
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

QTEST_MAIN(TestConsoleTextEdit)
#include "tst_consoletextedit.moc"
