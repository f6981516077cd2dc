#pragma once
// The reference file benches exchange without a server: one JSON document holding, per model,
// the rail references, the I2C device list and the recorded console answers, each with its
// origin, plus the masking texts. Versioned: a reader refuses a version newer than its own
// instead of guessing. Reading checks every field, so a truncated or tampered file is refused
// as a whole with the place of the first fault.

#include "DatabaseRecords.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

class Database;

struct RefFileRail
{
    MasterRow row; // Modelo, Malha, Ci, TIPO, Orig, Reft and refv; the readings stay at home
    std::optional<RefOrigin> origin;
};

struct RefFileI2c
{
    QString entry;
    std::optional<RefOrigin> origin;
};

struct RefFileDados
{
    DadosRecord record;
    std::optional<RefOrigin> origin;
};

struct RefFileModel
{
    QString model;
    QList<RefFileRail> rails;
    QList<RefFileI2c> i2c;
    QList<RefFileDados> dados;
};

struct RefBundle
{
    int version = 0;
    QString exported; // UTC, ISO 8601
    QString program;
    QList<RefFileModel> models;
    QStringList masks;
};

namespace RefFile {

inline constexpr int Version = 1;
inline const QString Format = QStringLiteral("pelorin-vekto-references");
// Beyond any real set of references; a bigger file is refused before it is parsed.
inline constexpr qint64 MaxBytes = 64 * 1024 * 1024;
// The longest name (model, net, chip, label, command, I2C entry, mask) and answer text accepted.
inline constexpr qsizetype MaxName = 255;
inline constexpr qsizetype MaxText = 1024 * 1024;

// The origin a reference carries out of this bench: as recorded, "typed" when the reference was
// changed since its origin was written, none when it has no known origin.
std::optional<RefOrigin> outgoingOrigin(const std::optional<RefOrigin> &local, const QString &value);

// The models' references as they stand (`models` empty: every model with rail references).
RefBundle collect(Database &db, const QStringList &models, const QString &exported, const QString &program);
QByteArray write(const RefBundle &bundle);

enum class Problem {
    None,
    Unreadable,  // missing, a folder, or no permission; too big
    NotJson,     // truncated or not a JSON document
    NotReferences,
    NewerVersion,
    BadField,    // a field missing, of the wrong type, too long or not a reference value
};

struct ReadResult
{
    Problem problem = Problem::None;
    QString detail; // the place and nature of the fault
    RefBundle bundle;
};

ReadResult read(const QByteArray &data);
ReadResult readFile(const QString &path);

// The dictionary key of a problem's message.
QString messageKey(Problem problem);

} // namespace RefFile
