#pragma once
// The number routines the measuring screens share. Readings travel as texts: volts with "." and
// three decimals, per-cent deviations with the decimal comma, digits cut and never rounded. The
// results never depend on the machine's locale.

#include <QString>
#include <optional>

// Millivolt count text ("4998.000", "-152.5") to volts ("4.998", "-0.152"). A text without "."
// is an invalid argument: nothing is returned and callers keep their previous value.
std::optional<QString> ConverteMilivolts(const QString &milivolts);

// Millivolt count text, with or without a fraction ("850", "-12", "4998.000"), to volts with
// three decimals; nothing for a text that is not a number. The rail and chip readouts share it.
std::optional<QString> milivoltsToVolts(const QString &milivolts);

// "3,14" -> "3.1", "12 5" -> "12.5", "7" -> "7": commas and blanks become points, then the
// text is kept up to one character after the first point (only the first character when none).
QString oneDecimalText(const QString &text);

// Per-cent deviation of reading `leitura` from reference `referencia`, both as texts whose points
// are dropped ("4.998" counts as 4998). Up to three units of the last digit give fixed tenths.
// Nothing is returned for a text that is not a number or a zero reference outside the bands.
std::optional<QString> CalculaPorcentagem(const QString &leitura, const QString &referencia);

// The deviation CalculaPorcentagem's text is made from, as a number and uncut: the fixed tenths
// for up to three units of the last digit, otherwise 100 × d ÷ F. Verdicts are taken from this
// number, never from the text, which is cut to six characters ("1,4E+16" shows as "1,4").
// Nothing when the texts are not numbers or the deviation cannot be computed.
std::optional<double> desvioPercentual(const QString &leitura, const QString &referencia);

// Reads a deviation text with the decimal comma ("-0,3", "12,5") as a number.
std::optional<double> porcentagemValor(const QString &porcentagem);
