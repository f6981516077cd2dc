#pragma once
// vekto-cli run as a user runs it, for the tests that read its output and exit code. The event
// loop keeps turning while it runs, so a loopback server in the test's thread can answer it.

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSignalSpy>
#include <QStringList>
#include <QTemporaryDir>

struct CliRun
{
    int exitCode = -1;  // -1: it crashed or hung
    QString text;       // standard output as printed
    QStringList lines;  // standard output without carriage returns and empty lines
    QJsonObject json;   // standard output read as one JSON object, when it is one
    QString errors;

    QString describe() const
    {
        return QStringLiteral("exit %1\n%2\n%3").arg(exitCode).arg(text, errors);
    }
};

inline QString cliProgram() { return QStringLiteral(VEKTO_BIN_DIR "/vekto-cli"); }

inline CliRun runCli(const QStringList &args)
{
    QProcess cli;
    QSignalSpy finished(&cli, &QProcess::finished);
    cli.start(cliProgram(), args);
    CliRun run;
    if (!finished.wait(120000)) {
        cli.kill();
        cli.waitForFinished();
        run.errors = QStringLiteral("vekto-cli did not finish");
        return run;
    }
    run.exitCode = cli.exitStatus() == QProcess::NormalExit ? cli.exitCode() : -1;
    const QByteArray out = cli.readAllStandardOutput();
    run.text = QString::fromUtf8(out);
    run.lines = QString(run.text).remove(u'\r').split(u'\n', Qt::SkipEmptyParts);
    run.json = QJsonDocument::fromJson(out).object();
    run.errors = QString::fromUtf8(cli.readAllStandardError());
    return run;
}

// Writes `bytes` to a fresh file in `dir` and returns its path: an answer as a technician saves it.
inline QString saveAnswer(const QTemporaryDir &dir, const QByteArray &bytes)
{
    static int n = 0;
    QFile file(dir.filePath(QStringLiteral("answer%1.txt").arg(++n)));
    if (file.open(QIODevice::WriteOnly))
        file.write(bytes);
    return file.fileName();
}
