#pragma once
// Judges the phone's answer to a radio switch-on command, and knows which command each radio
// button sends. Kept free of widgets so that the RF screen and `vekto-cli judge rf` give the
// same verdict from the same text. The success keys are plain, case-sensitive substrings; any
// answer that merely contains "OK" passes for every radio, because the console of some boards
// reports nothing else on success.

#include "Verdict.h"

#include <QColor>
#include <QString>
#include <QStringList>
#include <optional>

namespace RadioEngine {

// The radio byte of the RF screen; GPS is judged on the Wi-Fi switch-on answer.
enum Radio : quint8 { Baseband = 0, Bluetooth = 1, Gps = 2, Wifi = 3 };
inline constexpr int RadioCount = 4;

struct RadioCommand
{
    QString command; // empty when the model has no such test
    quint8 radio = Baseband;
    QString messageKey; // shown instead of sending, e.g. "MSG_NAO_PARA_IP6"
};

// The command of button `index` (0..3) switching on or off; nothing for another index.
std::optional<RadioCommand> command(int index, bool on, const QString &modelo);

QString name(quint8 radio);            // "Baseband", "Bluetooth", "Gps", "Wifi"
QStringList successKeys(quint8 radio); // searched case-sensitively, first match wins
QString backgroundLabel(quint8 radio); // lbFundoBase ...

// Background colours of the radio labels, with the colour texts the screen is described by.
inline const QColor PassColour(0x00, 0xFF, 0x00);     // &H0000FF00
inline const QColor FailColour(0x80, 0x80, 0x80);     // &H00808080
inline const QColor NeutralColour(0xFF, 0xFF, 0xFF);  // &H00FFFFFF
QString colourText(const QColor &colour);             // "&H00BBGGRR"

struct RadioResult
{
    Verdict verdict = Verdict::None; // None: the answer was empty, nothing to judge
    QString name;
    QString matchedKey;          // the success key found, empty on failure
    QString verdictKey;          // "COMUNICAÇÃO OK" / "COMUNICAÇÃO OFF", untranslated
    QString background;          // the label whose colour changes
    QColor colour = NeutralColour;
    bool repeat = false;         // "REPITA PROCESSO" goes under the answer
};

// `answer` is the console text as handed to the screen. A blank answer is no answer: the
// device said nothing, which must not read as a dead radio any more than as a live one.
RadioResult AnalisaResposta(quint8 radio, const QString &answer);

// The text of lbStatus2: the radio's name, a line break and the translated verdict.
QString status(const RadioResult &result, const QString &translatedVerdict);

// What goes at the end of txtDados after a failure: two line breaks and the translated request.
QString repeatSuffix(const QString &translatedRepeat);

// The type letter of the RF reference rows: "T" for the IP 6 and 6s families, whose modem has
// one variant; "I" (choice 1) or "Q" (choice 2) for the two modem variants of later models.
QString tipoRf(const QString &modelo, int escolha);

} // namespace RadioEngine
