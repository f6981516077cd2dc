#pragma once
// What the comparator tests share: a fresh Config.vkt built from the real schema in a temporary
// folder, a shell that records what it would open, and a console answer framed the way the
// exchange hands it over.

#include "ConsoleExchange.h"
#include "Database.h"
#include "DatabaseBuilder.h"
#include "FakeDialogs.h"
#include "FakeSerialPort.h"
#include "FakeShell.h"
#include "Session.h"
#include "platform/SqlFixture.h"

#include <QFileInfo>
#include <QTemporaryDir>
#include <unistd.h>


namespace fixture {

// A database file with the schema and no rows.
inline bool makeDatabaseAt(const QString &path)
{
    QString error;
    if (!DatabaseBuilder::build(QStringLiteral(VEKTO_SOURCE_DIR "/data/schema.sql"), {}, path, &error))
        qWarning("%s", qPrintable(error));
    return error.isEmpty();
}

// Config.vkt with the schema and no rows, in `dir`; empty on failure.
inline QString makeDatabase(const QTemporaryDir &dir)
{
    const QString path = dir.filePath(QStringLiteral("Config.vkt"));
    return makeDatabaseAt(path) ? path : QString();
}

// One screen's surroundings on a fresh file: session, scripted line, exchange and boxes.
struct ScreenRig
{
    QTemporaryDir dir;
    QString path = makeDatabase(dir);
    Session session{path};
    FakeSerialPort port;
    ConsoleExchange exchange{session, port};
    FakeDialogs dialogs;
};

// CR LF, the echoed command, CR CR LF, the lines each ending CR LF, and the prompt.
inline QString consoleAnswer(const QString &command, const QStringList &lines,
                             const QString &prompt = QStringLiteral("[0000002a:0000001b] :-) "))
{
    QString text = QStringLiteral("\r\n") + command + QStringLiteral("\r\r\n");
    for (const QString &line : lines)
        text += line + QStringLiteral("\r\n");
    return text + prompt;
}

// The bytes a phone sends for that answer (what the exchange turns into consoleAnswer()).
inline QByteArray deviceBytes(const QString &command, const QStringList &lines,
                              const QString &prompt = QStringLiteral("[0000002a:0000001b] :-) "))
{
    QByteArray bytes = command.toUtf8() + "\r\n";
    for (const QString &line : lines)
        bytes += line.toUtf8() + '\n';
    return bytes + prompt.toUtf8();
}

// Makes the file refuse every write. Permissions are enough for an ordinary user; root writes
// through them, so there the tables get triggers that refuse the same way a read-only file does.
inline bool makeUnwritable(const QString &path)
{
    if (geteuid() == 0) {
        sqlfixture::Raw raw(path);
        for (const char *table : {"Dados", "Comandos", "M"})
            for (const char *op : {"INSERT", "UPDATE", "DELETE"})
                if (!raw.exec(QStringLiteral("CREATE TRIGGER ro_%1_%2 BEFORE %2 ON %1 BEGIN SELECT RAISE(ABORT, "
                                             "'attempt to write a readonly database'); END")
                                  .arg(QLatin1String(table), QLatin1String(op))))
                    return false;
    }
    return QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
}

} // namespace fixture
