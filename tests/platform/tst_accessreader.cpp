// Reading Access files through libmdb, and telling a previous installation's file apart by its
// first bytes. The Access fixture lives beside the project (never copied into it); the tests
// skip when it is absent. Damaged copies are made in a temporary folder.

#include "AccessReader.h"
#include "UserFile.h"

#include <QTemporaryDir>
#include <QtTest>

namespace {

QString fixture()
{
    QString dir = qEnvironmentVariable("VEKTO_SHARED_DIR");
    if (dir.isEmpty())
        dir = QStringLiteral(VEKTO_SHARED_DIR);
    return QDir(dir).filePath(QStringLiteral("fixtures/DateTestDatabase.mdb"));
}

QByteArray fixtureBytes()
{
    QFile file(fixture());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

} // namespace

class TestAccessReader : public QObject
{
    Q_OBJECT

private slots:
    void tablesAndColumns()
    {
        if (!QFile::exists(fixture()))
            QSKIP("the shared Access fixture is not beside the project");
        AccessReader reader(fixture());
        QVERIFY2(reader.isOpen(), qPrintable(reader.lastError()));
        QCOMPARE(reader.tables(), QStringList{QStringLiteral("DateTest")});
        QCOMPARE(reader.columns(QStringLiteral("datetest")),
                 QStringList({"IDCol", "DateTimeCol", "DateCol", "TimeCol", "LongTextCol", "ShortTextCol"}));
        QCOMPARE(reader.columns(QStringLiteral("MSysObjects")), std::nullopt);
    }

    void knownValues_data()
    {
        QTest::addColumn<int>("row");
        QTest::addColumn<QString>("column");
        QTest::addColumn<QString>("value");
        QTest::newRow("first id") << 0 << "IDCol" << "1";
        QTest::newRow("short text") << 0 << "ShortTextCol" << "Hello";
        QTest::newRow("memo text") << 0 << "LongTextCol" << "Hello";
        QTest::newRow("date as text") << 0 << "DateTimeCol" << "2021-12-02 00:00:00";
        QTest::newRow("column name in other case") << 1 << "shorttextcol" << "Year 1999";
        QTest::newRow("memo of another row") << 2 << "LongTextCol" << "Pre-1900 years";
        QTest::newRow("backslashes stay as stored") << 4 << "ShortTextCol" << "Escaped new line \\r\\n in field";
    }
    void knownValues()
    {
        if (!QFile::exists(fixture()))
            QSKIP("the shared Access fixture is not beside the project");
        QFETCH(int, row);
        QFETCH(QString, column);
        AccessReader reader(fixture());
        const auto rows = reader.rows(QStringLiteral("DateTest"), {column, QStringLiteral("IDCol")});
        QVERIFY2(rows.has_value(), qPrintable(reader.lastError()));
        QVERIFY(rows->size() > row);
        QTEST(rows->at(row).at(0), "value");
        // Rows come in their stored order.
        QCOMPARE(rows->at(row).at(1), QString::number(row + 1));
    }

    void missingTableOrColumn_data()
    {
        QTest::addColumn<QString>("table");
        QTest::addColumn<QStringList>("columns");
        QTest::addColumn<QString>("named");
        QTest::newRow("table") << "Master" << QStringList{"Modelo"} << "Master";
        QTest::newRow("column") << "DateTest" << QStringList{"IDCol", "G1"} << "G1";
        QTest::newRow("system table") << "MSysObjects" << QStringList{"Id"} << "MSysObjects";
    }
    void missingTableOrColumn()
    {
        if (!QFile::exists(fixture()))
            QSKIP("the shared Access fixture is not beside the project");
        QFETCH(QString, table);
        QFETCH(QStringList, columns);
        QFETCH(QString, named);
        AccessReader reader(fixture());
        QCOMPARE(reader.rows(table, columns), std::nullopt);
        QVERIFY2(reader.lastError().contains(named), qPrintable(reader.lastError()));
    }

    // Cut or damaged copies are refused or read without crashing; none is taken for a good file.
    void damagedCopies_data()
    {
        QTest::addColumn<int>("keep");
        QTest::newRow("header only") << 100;
        QTest::newRow("one page") << 4096;
        QTest::newRow("half a page more") << 8192 + 2048;
        QTest::newRow("cut mid-file") << 65536 + 100;
    }
    void damagedCopies()
    {
        const QByteArray bytes = fixtureBytes();
        if (bytes.isEmpty())
            QSKIP("the shared Access fixture is not beside the project");
        QFETCH(int, keep);
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("cut.mdb"));
        writeFile(path, bytes.left(keep));
        AccessReader reader(path);
        QVERIFY(!reader.isOpen());
        QVERIFY(!reader.lastError().isEmpty());
        QCOMPARE(reader.rows(QStringLiteral("DateTest"), {QStringLiteral("IDCol")}), std::nullopt);
    }

    void formatByFirstBytes_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<int>("format");
        QTest::addColumn<int>("problem");
        using F = UserFile::Format;
        using P = UserFile::Problem;
        QTest::newRow("empty") << QByteArray() << int(F::Empty) << int(P::Empty);
        QTest::newRow("text") << QByteArray("Modelo;Malha\n") << int(F::Unknown) << int(P::NotADatabase);
        QTest::newRow("NUL bytes") << QByteArray(64, '\0') << int(F::Unknown) << int(P::NotADatabase);
        QTest::newRow("Jet signature, nothing more") << QByteArray("\x00\x01\x00\x00Standard Jet DB\x00", 20)
                                                     << int(F::Access) << int(P::Unreadable);
        QTest::newRow("ACE signature, nothing more") << QByteArray("\x00\x01\x00\x00Standard ACE DB\x00", 20)
                                                     << int(F::Access) << int(P::Unreadable);
        QTest::newRow("SQLite header, then garbage")
            << QByteArray("SQLite format 3\0", 16) + QByteArray(200, '\x7f') << int(F::SQLite) << int(P::Unreadable);
    }
    void formatByFirstBytes()
    {
        QFETCH(QByteArray, content);
        QTemporaryDir dir;
        const QString path = dir.filePath(QStringLiteral("User.vkt"));
        writeFile(path, content);
        QTEST(int(UserFile::detect(path)), "format");
        UserFile file(path);
        QTEST(int(file.problem()), "problem");
        QVERIFY(file.tables().isEmpty());
    }

};

QTEST_MAIN(TestAccessReader)
#include "tst_accessreader.moc"
