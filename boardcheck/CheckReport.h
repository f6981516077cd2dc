#pragma once
// The report of one board check, for the customer or the bench file: header with the board and
// the program, the failures first, then every step's table, and beside each value the value of
// an earlier check when one is chosen. Laid out once as a QTextDocument; the HTML file is that
// document's HTML and the PDF is that document printed by QPdfWriter.

#include "CheckHistory.h"
#include "CheckResult.h"

#include <QColor>
#include <QString>

class QTextDocument;

namespace CheckReport {

// Word and colour of a verdict, the same on the screen and on paper: the word alone says it
// for anyone who cannot tell the colours apart.
QString verdictWord(Verdict verdict, quint8 idioma);
QString noAnswerWord(quint8 idioma);
QColor verdictColour(Verdict verdict);
QColor noAnswerColour();

// The HTML the document is built from.
QString html(const CheckResult &result, const CheckComparison &comparison, quint8 idioma);

// Writes `path` as HTML or PDF by its suffix. Empty when written; otherwise why not, naming it.
QString write(const QString &path, const CheckResult &result, const CheckComparison &comparison, quint8 idioma);

} // namespace CheckReport
