#pragma once
// Judges one I2C bus scan ("i2c -s N") against the devices the reference table lists for the
// model on that bus, and holds the per-model rules around it: which bus buttons a model offers,
// which connector or part usually breaks a bus, which schematic extract belongs to the model,
// and the order in which the automatic run probes the buses. No widgets: the I2C screen paints
// the result and the command line prints the very same one.

#include "Verdict.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <array>
#include <functional>

// One row of table `i`: bus digit, three address characters searched in the answer, "-",
// description.
struct I2CEntry
{
    QString entry;
    QString address;
    QString description;
    // False when the row is too short to carry a whole address: such a row cannot be judged.
    bool wellFormed = false;
};

struct I2CDeviceResult
{
    I2CEntry device;
    Verdict verdict = Verdict::None;
    QString line; // address - description - result text, as the screen lists it
};

struct I2CBusResult
{
    int bus = 0;
    QList<I2CDeviceResult> devices;
    bool anyFailed() const;
};

// How a bus button shows on the screen for a model.
struct I2CBusState
{
    bool enabled = true;
    bool visible = true;
};

// The result texts in the session language.
struct I2CTexts
{
    QString ok = QStringLiteral("COMUNICAÇÃO OK");
    QString off = QStringLiteral("COMUNICAÇÃO OFF");
    QString invalid = QStringLiteral("Referência inválida");
};

namespace I2CEngine {

constexpr int BusCount = 8;
using BusLayout = std::array<I2CBusState, BusCount>;

I2CEntry parseEntry(const QString &entry);

// "i2c -s " and the bus number in decimal.
QString command(int bus);

// The bus buttons as the model offers them: every one usable, then the model family's and the
// model's own exceptions.
BusLayout busLayout(const QString &model);

// The bus button at whose height the auto-test button sits (3 for the "IP 6" family, 5 for the
// "IP 7" family), or BusCount when it stays below all of them.
int autoTesteRow(const QString &model);

// The flex cable or part that usually breaks the bus, or empty.
QString connectorText(const QString &model, int bus);

// The schematic extract of the model, a file beside the program; empty when there is none.
QString pdfName(const QString &model);

// Every row of the bus judged against the whole answer, in the order of `entries`.
I2CBusResult judge(int bus, const QString &answer, const QStringList &entries, const I2CTexts &texts = {});

// `failures` with the silent devices of `result` added under one "I2C " + bus heading and the
// bus's connector text; unchanged when nothing on the bus failed.
QString appendFailures(const QString &failures, const I2CBusResult &result, const QString &model);

} // namespace I2CEngine

// The automatic run over a model's buses: which bus the next tick probes and when the run is
// over. The screen asks it on every tick of its run timer while no bus test is waiting, with the
// states of its own bus buttons; the command line asks it with the model's layout.
class I2CAutoRun
{
public:
    struct Step
    {
        int probe = -1;      // the bus to test now, or -1
        bool finish = false; // the run is over
    };
    using StateOf = std::function<I2CBusState(int bus)>;

    void start() { m_counter = 0; }
    // One tick; `state` is only asked about buses 0 to 7.
    Step tick(const StateOf &state);
    // The next bus to probe; after a probe, one past the bus just started.
    quint16 counter() const { return m_counter; }

    // Every bus the run probes for a layout, in order.
    static QList<int> sequence(const I2CEngine::BusLayout &layout);

private:
    quint16 m_counter = 0;
};
