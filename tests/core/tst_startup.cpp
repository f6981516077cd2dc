// Start-up against every state Config.vkt can be found in: missing, unreadable as a database,
// without tables, or fine. A failure shows one three-language box, exits non-zero and leaves
// the file exactly as it was.

#include "Database.h"
#include "FakeDialogs.h"
#include "Session.h"
#include "Startup.h"

#include <QCryptographicHash>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QtTest>

namespace {

QByteArray digest(const QString &path)
{
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly))
        return {};
    return QCryptographicHash::hash(f.readAll(), QCryptographicHash::Sha256);
}

} // namespace

class TestStartup : public QObject
{
    Q_OBJECT

private slots:
    void missingConfig()
    {
        QTemporaryDir dir;
        FakeDialogs dialogs;
        const QString path = Startup::configPath(dir.path());
        QCOMPARE(QFileInfo(path).fileName(), QStringLiteral("Config.vkt"));
        QCOMPARE(Startup::checkConfig(path, dialogs), std::optional<int>(1));
        QCOMPARE(dialogs.shown,
                 QStringList{QStringLiteral("critical:Arquivo ausente - File not found|"
                                            "BR - Arquivo: 'Config.vkt' ausente, reinstale o software\r\n"
                                            "US - Config.vkt' missing, reinstall software\r\n"
                                            "ES - Archivo: falta 'Config.vkt', reinstale el software")});
        QVERIFY(!QFile::exists(path));
    }

    void unusableConfig_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<QString>("english");
        QTest::newRow("text file") << QByteArray("this is not a database\n") << "damaged";
        QTest::newRow("empty SQLite file") << QByteArray() << "tables";
    }
    void unusableConfig()
    {
        QFETCH(QByteArray, content);
        QFETCH(QString, english);
        QTemporaryDir dir;
        const QString path = Startup::configPath(dir.path());
        if (content.isEmpty()) {
            // A real SQLite file that holds no tables of ours.
            {
                QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("empty"));
                db.setDatabaseName(path);
                QVERIFY(db.open());
                QSqlQuery(db).exec(QStringLiteral("CREATE TABLE other (x TEXT)"));
                db.close();
            }
            QSqlDatabase::removeDatabase(QStringLiteral("empty"));
        } else {
            QFile f(path);
            QVERIFY(f.open(QIODevice::WriteOnly));
            f.write(content);
        }
        const QByteArray before = digest(path);
        FakeDialogs dialogs;
        const auto code = Startup::checkConfig(path, dialogs);
        QVERIFY(code.has_value());
        QVERIFY(*code != 0);
        QCOMPARE(dialogs.shown.size(), 1);
        const QString box = dialogs.shown.first();
        QVERIFY2(box.startsWith(QStringLiteral("critical:")), qPrintable(box));
        QVERIFY2(box.contains(QDir::toNativeSeparators(path)), qPrintable(box));
        for (const char *prefix : {"BR - ", "US - ", "ES - "})
            QVERIFY2(box.contains(QLatin1String(prefix)), qPrintable(box));
        QVERIFY2(box.contains(english, Qt::CaseInsensitive), qPrintable(box));
        QCOMPARE(digest(path), before);
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
        QCOMPARE(session.versao(), QStringLiteral("1.81"));
        QCOMPARE(session.versao2(), QStringLiteral("1.81"));
        QCOMPARE(session.screenId(), QStringLiteral("0"));
        QCOMPARE(session.defaultReadoutKey(), QStringLiteral("ACORNPMUREADALL"));
        QVERIFY(!session.startFlag());
        QVERIFY(session.sessionStart().isValid());
    }
};

QTEST_MAIN(TestStartup)
#include "tst_startup.moc"
