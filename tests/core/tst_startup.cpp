// Start-up against every state Config.vkt can be found in: missing, unreadable as a database,
// without tables, or fine. A failure shows one three-language box, exits non-zero and leaves
// the file exactly as it was.

#include "Database.h"
#include "FakeDialogs.h"
#include "Session.h"
#include "Startup.h"
#include "platform/SqlFixture.h"

#include <QTemporaryDir>
#include <QtTest>

class TestStartup : public QObject
{
    Q_OBJECT

private slots:
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
        if (!QFile::exists(shipped))
            QSKIP("Config.vkt was not built");
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
};

QTEST_MAIN(TestStartup)
#include "tst_startup.moc"
