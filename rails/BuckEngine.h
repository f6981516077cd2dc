#pragma once
// Cuts the buck converter outputs out of the answers of "buck" (plain read of every buck) and
// "buckcheck N" (the device's own check of one buck). Pure functions: the self-test screen lists
// what they return for the live answer and for a recorded one, the command line prints it.

#include <QList>
#include <QString>

struct BuckLine
{
    QString text;        // the list line, e.g. "   buck1 voltage: 0.850 V"
    bool passed = true;  // only a buck check can fail
};

// The translated words a buck check line carries.
struct BuckWords
{
    QString referencia = QStringLiteral("Referência");
    QString leitura = QStringLiteral("Leitura");
};

// Lines are numbered from 0 when the answer names "buck0", else from 1.
int primeiroNumeroBuck(const QString &answer);

// "buckN: <millivolts> mV" pairs of a plain read; nothing for an answer of a buck check.
QList<BuckLine> ExtraiLeiturasBuck(const QString &answer);

// "target <mV> mV ... measured <mV> mV <verdict>" groups of a buck check.
QList<BuckLine> ExtraiBistBuck(const QString &answer, const BuckWords &words = {});
