#pragma once
// The console text the tool shows after sending one command to a fresh simulated board, built
// in-process from the simulator's own answer files.

#include "Board.h"
#include "ConsoleExchange.h"
#include "SimCatalog.h"

inline QString simConsoleAnswer(const QString &model, const QString &command, Profile profile = Profile::Good)
{
    Board board(AnswerStore(), *SimCatalog::modelByName(model), profile);
    board.receive(command.toUtf8() + '\r');
    QByteArray bytes;
    while (board.hasOutput())
        bytes += board.takeOutput(1 << 20);
    return QStringLiteral("\r\n") + ConsoleExchange::convertSlice(QString::fromUtf8(bytes));
}
