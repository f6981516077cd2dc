#include "RefImport.h"

#include "Database.h"
#include "RefOrigins.h"

#include <QFileInfo>
#include <QSet>

namespace RefImport {

namespace {

// The origin an imported reference gets here: where it came from first, and from which file.
RefOrigin imported(const QString &kind, const QString &model, const QString &item, const QString &value,
                   const std::optional<RefOrigin> &incoming, const RefBundle &bundle, const QString &fileName)
{
    RefOrigin o = incoming.value_or(RefOrigin{});
    o.kind = kind;
    o.model = model;
    o.item = item;
    o.value = value;
    o.source = RefOrigins::Imported;
    if (o.at.isEmpty())
        o.at = bundle.exported;
    if (o.version.isEmpty())
        o.version = bundle.program;
    o.file = fileName;
    o.fileDate = bundle.exported;
    return o;
}

// An incoming item without any origin still carries the moment the file was written.
RefOrigin incomingOrigin(const std::optional<RefOrigin> &origin, const RefBundle &bundle)
{
    RefOrigin o = origin.value_or(RefOrigin{});
    if (o.at.isEmpty() && o.source != RefOrigins::Demo)
        o.at = bundle.exported;
    return o;
}

struct Importer
{
    Database &db;
    const RefBundle &bundle;
    QString fileName;
    Report &report;

    bool rails(const RefFileModel &m)
    {
        for (const RefFileRail &rail : m.rails) {
            const auto local = db.masterRow(m.model, rail.row.malha);
            const RefOrigin origin =
                imported(RefOrigins::Rail, m.model, rail.row.malha, rail.row.refv, rail.origin, bundle, fileName);
            if (!local) {
                MasterRow row = rail.row;
                row.modelo = m.model;
                if (!db.addMasterRow(row) || !db.setRefOrigin(origin))
                    return false;
                ++report.rails.added;
                continue;
            }
            if (local->refv == rail.row.refv) {
                ++report.rails.same;
                continue;
            }
            if (!RefOrigins::incomingWins(db.refOrigin(RefOrigins::Rail, m.model, rail.row.malha), local->refv,
                                          incomingOrigin(rail.origin, bundle))) {
                report.conflicts.append({RefOrigins::Rail, m.model, rail.row.malha, local->refv, rail.row.refv});
                continue;
            }
            if (!db.setRefv({m.model, rail.row.malha}, rail.row.refv) || !db.setRefOrigin(origin))
                return false;
            ++report.rails.replaced;
        }
        return true;
    }

    bool i2c(const RefFileModel &m)
    {
        if (m.i2c.isEmpty())
            return true;
        const QStringList local = db.i2cEntries(m.model);
        QStringList incoming;
        // The incoming list stands as one too: demo only when every entry is, as new as its newest.
        RefOrigin newest;
        newest.source = RefOrigins::Demo;
        for (const RefFileI2c &e : m.i2c) {
            incoming << e.entry;
            const RefOrigin o = incomingOrigin(e.origin, bundle);
            if (o.source != RefOrigins::Demo)
                newest.source = RefOrigins::Imported;
            if (o.at > newest.at)
                newest.at = o.at;
        }
        const auto asSet = [](const QStringList &l) {
            QSet<QString> s;
            for (const QString &e : l)
                s.insert(e.toUpper());
            return s;
        };
        if (asSet(local) == asSet(incoming)) {
            ++report.i2c.same;
            return true;
        }
        if (!local.isEmpty()) {
            // The local list stands as one: demo only when every entry is, unknown when any is.
            QHash<QString, RefOrigin> origins;
            for (const RefOrigin &o : db.refOrigins(RefOrigins::I2c, m.model))
                origins.insert(o.item.toUpper(), o);
            RefOrigins::State state = RefOrigins::State::Demo;
            QString at;
            for (const QString &entry : local) {
                const auto it = origins.constFind(entry.toUpper());
                const RefOrigins::State s =
                    RefOrigins::state(it == origins.constEnd() ? std::nullopt : std::optional(*it), entry);
                if (s == RefOrigins::State::Unknown || s == RefOrigins::State::Changed) {
                    state = s;
                    break;
                }
                if (s != RefOrigins::State::Demo)
                    state = s;
                if (it != origins.constEnd() && it->at > at)
                    at = it->at;
            }
            if (!RefOrigins::incomingWins(state, at, newest)) {
                report.conflicts.append({RefOrigins::I2c, m.model, QStringLiteral("bus list"),
                                         local.join(QStringLiteral("; ")), incoming.join(QStringLiteral("; "))});
                return true;
            }
        }
        for (const QString &entry : local)
            if (!db.deleteRefOrigin(RefOrigins::I2c, m.model, entry))
                return false;
        if (!db.replaceI2cEntries(m.model, incoming))
            return false;
        for (const RefFileI2c &e : m.i2c)
            if (!db.setRefOrigin(imported(RefOrigins::I2c, m.model, e.entry, e.entry, e.origin, bundle, fileName)))
                return false;
        ++(local.isEmpty() ? report.i2c.added : report.i2c.replaced);
        return true;
    }

    bool dados(const RefFileModel &m)
    {
        for (const RefFileDados &d : m.dados) {
            DadosRecord record = d.record;
            record.aparelho = m.model;
            const auto local = db.dadosRecord(m.model, record.comando);
            const RefOrigin origin =
                imported(RefOrigins::Dados, m.model, record.comando, record.dados, d.origin, bundle, fileName);
            if (local && local->dados == record.dados && local->info == record.info && local->info2 == record.info2
                && local->info3 == record.info3) {
                ++report.dados.same;
                continue;
            }
            if (local && !RefOrigins::incomingWins(db.refOrigin(RefOrigins::Dados, m.model, record.comando),
                                                   local->dados, incomingOrigin(d.origin, bundle))) {
                report.conflicts.append({RefOrigins::Dados, m.model, record.comando,
                                         QStringLiteral("%1 characters").arg(local->dados.size()),
                                         QStringLiteral("%1 characters").arg(record.dados.size())});
                continue;
            }
            if (!db.saveDados(record) || !db.setRefOrigin(origin))
                return false;
            ++(local ? report.dados.replaced : report.dados.added);
        }
        return true;
    }

    bool masks()
    {
        QSet<QString> present;
        for (const QString &mask : db.maskTexts())
            present.insert(mask.toUpper());
        for (const QString &mask : bundle.masks) {
            if (present.contains(mask.toUpper()))
                continue;
            if (!db.addMaskText(mask))
                return false;
            present.insert(mask.toUpper());
            ++report.masksAdded;
        }
        return true;
    }
};

} // namespace

QString Report::messageKey() const
{
    switch (problem) {
    case Problem::None: return {};
    case Problem::File: return RefFile::messageKey(fileProblem);
    case Problem::UnknownModel: return QStringLiteral("REF_ARQ_MODELO");
    case Problem::ConfigFailed: return QStringLiteral("REF_IMPORT_FALHOU");
    }
    return {};
}

Report run(Database &db, const RefBundle &bundle, const QString &fileName)
{
    Report report;
    QSet<QString> known;
    for (const QString &model : db.knownModels())
        known.insert(model.toUpper());
    if (!db.lastError().isEmpty()) {
        report.problem = Problem::ConfigFailed;
        report.detail = db.lastError();
        return report;
    }
    for (const RefFileModel &m : bundle.models) {
        if (!known.contains(m.model.toUpper())) {
            report.problem = Problem::UnknownModel;
            report.detail = m.model;
            return report;
        }
    }
    Importer importer{db, bundle, fileName, report};
    const bool ok = db.transaction([&] {
        for (const RefFileModel &m : bundle.models)
            if (!importer.rails(m) || !importer.i2c(m) || !importer.dados(m))
                return false;
        return importer.masks();
    });
    if (!ok) {
        report = Report{};
        report.problem = Problem::ConfigFailed;
        report.detail = db.lastError();
    }
    return report;
}

Report runFile(Database &db, const QString &path)
{
    const RefFile::ReadResult read = RefFile::readFile(path);
    if (read.problem != RefFile::Problem::None) {
        Report report;
        report.problem = Problem::File;
        report.fileProblem = read.problem;
        report.detail = read.detail;
        return report;
    }
    return run(db, read.bundle, QFileInfo(path).fileName());
}

} // namespace RefImport
