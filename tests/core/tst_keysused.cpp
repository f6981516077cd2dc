// Every literal key that the screens pass to the dictionary or the message table must exist:
// an unknown key shows nothing at all, which a technician only notices on the bench.

#include "Texts.h"

#include <QDirIterator>
#include <QRegularExpression>
#include <QtTest>

class TestKeysUsed : public QObject
{
    Q_OBJECT

private slots:
    void everyLiteralKeyExists()
    {
        const QDir source(QStringLiteral(VEKTO_SOURCE_DIR));
        if (!source.exists(QStringLiteral("core")))
            QSKIP("the sources are not beside the build");
        const QRegularExpression traduz(QStringLiteral("Traduz\\(\\s*QStringLiteral\\(\"((?:[^\"\\\\]|\\\\.)*)\"\\)"));
        const QRegularExpression mensagem(QStringLiteral("QStringLiteral\\(\"((?:MSG_|SOMENTE_)[A-Z0-9_]*)\"\\)"));
        const QStringList dictionary = Texts::dictionaryKeys();
        const QStringList messages = Texts::messageKeys();
        QStringList missing;
        int seen = 0;
        for (const char *folder : {"core", "comparator", "refs", "rails", "chips", "boardtests", "platform", "cli", "app"}) {
            QDirIterator it(source.filePath(QString::fromLatin1(folder)), {QStringLiteral("*.cpp"), QStringLiteral("*.h")},
                            QDir::Files, QDirIterator::Subdirectories);
            while (it.hasNext()) {
                const QString path = it.next();
                QFile file(path);
                QVERIFY(file.open(QIODevice::ReadOnly));
                const QString text = QString::fromUtf8(file.readAll());
                for (auto m = traduz.globalMatch(text); m.hasNext(); ++seen) {
                    const QString key = m.next().captured(1);
                    if (!dictionary.contains(key))
                        missing << QStringLiteral("%1: \"%2\"").arg(QFileInfo(path).fileName(), key);
                }
                for (auto m = mensagem.globalMatch(text); m.hasNext(); ++seen) {
                    const QString key = m.next().captured(1);
                    if (!messages.contains(key) && !dictionary.contains(key))
                        missing << QStringLiteral("%1: \"%2\"").arg(QFileInfo(path).fileName(), key);
                }
            }
        }
        QVERIFY2(seen > 20, "the scan found almost no keys: has the way screens translate changed?");
        QVERIFY2(missing.isEmpty(), qPrintable(missing.join(QStringLiteral("\n"))));
    }
};

QTEST_MAIN(TestKeysUsed)
#include "tst_keysused.moc"
