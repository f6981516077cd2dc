#pragma once
// The shipped demo recordings, derived from the simulated phone's good boards: for every model
// and every command of the list, the console text the tool receives from the simulator, with the
// board's identifying texts (serial numbers, NAND UID) masked as the masking tool would leave
// them. vekto-demoseeds writes data/seed/40_m_demo.sql, 50_dados_demo.sql and 55_dados_testes_demo.sql
// from here, and the
// comparator tests check the shipped file against it, so the seeds cannot drift from the simulator.

#include "SimCatalog.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <utility>

namespace demo {

struct Recording
{
    QString model;
    QString command;
    QString console;  // what the console shows after the exchange
    QString recorded; // the same with the masks applied
};

// The console text of one exchange with a fresh good board.
QString consoleText(const SimModel &model, const QString &command);
// Texts that tell one board from another: the serial numbers in "syscfg list" and the NAND UID.
QStringList masks();
QList<Recording> recordings(const QStringList &commands, const QStringList &maskTexts);
// Recordings kept under a test's key word ("TRISTAR", "DRAM", "BATERIA") rather than a command,
// with the command whose answer each word stands for.
QList<std::pair<QString, QString>> keyWordCommands();
QList<Recording> keyWordRecordings(const QStringList &maskTexts);
// Every shipped recording: each listed command, then each key word, for every model.
QList<Recording> allRecordings(const QStringList &commands, const QStringList &maskTexts);
// An SQL text literal that stays readable and gives the value back byte for byte.
QString sqlText(const QString &text);
QString maskSeed(const QStringList &maskTexts);
// `subject` names what the rows answer, in the file's first line.
QString dadosSeed(const QList<Recording> &rows, const char *subject = "every listed command");

} // namespace demo
