#include "RefFile.h"

#include "Database.h"
#include "RefOrigins.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

namespace RefFile {

namespace {

QJsonValue originJson(const std::optional<RefOrigin> &o)
{
    if (!o)
        return QJsonValue::Null;
    return QJsonObject{{QStringLiteral("source"), o->source},   {QStringLiteral("boards"), o->boards},
                       {QStringLiteral("serials"), o->serials}, {QStringLiteral("at"), o->at},
                       {QStringLiteral("version"), o->version}, {QStringLiteral("file"), o->file},
                       {QStringLiteral("fileDate"), o->fileDate}};
}

// The first fault found while reading; reading stops at it.
struct Reader
{
    QString fault;

    bool failed() const { return !fault.isEmpty(); }

    QString text(const QJsonObject &object, const QString &key, const QString &where, qsizetype limit,
                 bool required = true)
    {
        if (failed())
            return {};
        const QJsonValue value = object.value(key);
        if (value.isUndefined() && !required)
            return {};
        if (!value.isString()) {
            fault = QStringLiteral("%1.%2: text expected").arg(where, key);
            return {};
        }
        const QString s = value.toString();
        if (s.size() > limit)
            fault = QStringLiteral("%1.%2: longer than %3 characters").arg(where, key).arg(limit);
        return s;
    }

    QJsonArray array(const QJsonObject &object, const QString &key, const QString &where)
    {
        if (failed())
            return {};
        const QJsonValue value = object.value(key);
        if (value.isUndefined())
            return {};
        if (!value.isArray())
            fault = QStringLiteral("%1.%2: list expected").arg(where, key);
        return value.toArray();
    }

    QJsonObject object(const QJsonValue &value, const QString &where)
    {
        if (!failed() && !value.isObject())
            fault = where + QStringLiteral(": object expected");
        return value.toObject();
    }

    std::optional<RefOrigin> origin(const QJsonObject &item, const QString &where)
    {
        const QJsonValue value = item.value(QStringLiteral("origin"));
        if (failed() || value.isUndefined() || value.isNull())
            return std::nullopt;
        const QString here = where + QStringLiteral(".origin");
        const QJsonObject o = object(value, here);
        RefOrigin r;
        r.source = text(o, QStringLiteral("source"), here, MaxName);
        r.serials = text(o, QStringLiteral("serials"), here, MaxName * 8, false);
        r.at = text(o, QStringLiteral("at"), here, MaxName, false);
        r.version = text(o, QStringLiteral("version"), here, MaxName, false);
        r.file = text(o, QStringLiteral("file"), here, MaxName, false);
        r.fileDate = text(o, QStringLiteral("fileDate"), here, MaxName, false);
        const QJsonValue boards = o.value(QStringLiteral("boards"));
        if (!failed() && !boards.isUndefined() && !boards.isDouble())
            fault = here + QStringLiteral(".boards: number expected");
        r.boards = qBound(0, boards.toInt(), 3);
        return r;
    }
};

bool isReferenceValue(const QString &refv)
{
    // What the grids compare against: volts with a point, milliamps with a comma, or nothing.
    static const QRegularExpression form(QStringLiteral("^(-?\\d{1,6}([.,]\\d{1,6})?)?$"));
    return form.match(refv).hasMatch();
}

} // namespace

std::optional<RefOrigin> outgoingOrigin(const std::optional<RefOrigin> &local, const QString &value)
{
    switch (RefOrigins::state(local, value)) {
    case RefOrigins::State::Unknown:
        return std::nullopt;
    case RefOrigins::State::Changed: {
        RefOrigin typed;
        typed.source = QStringLiteral("typed");
        return typed;
    }
    default:
        return local;
    }
}

RefBundle collect(Database &db, const QStringList &models, const QString &exported, const QString &program)
{
    RefBundle bundle;
    bundle.version = Version;
    bundle.exported = exported;
    bundle.program = program;
    for (const QString &model : models.isEmpty() ? db.railModels() : models) {
        RefFileModel m;
        m.model = model;
        QHash<QString, RefOrigin> rails, entries, dados;
        for (const RefOrigin &o : db.refOrigins(RefOrigins::Rail, model))
            rails.insert(o.item.toUpper(), o);
        for (const RefOrigin &o : db.refOrigins(RefOrigins::I2c, model))
            entries.insert(o.item.toUpper(), o);
        for (const RefOrigin &o : db.refOrigins(RefOrigins::Dados, model))
            dados.insert(o.item.toUpper(), o);
        const auto find = [](const QHash<QString, RefOrigin> &in, const QString &key) -> std::optional<RefOrigin> {
            const auto it = in.constFind(key.toUpper());
            return it == in.constEnd() ? std::nullopt : std::optional(*it);
        };
        MasterFilter filter;
        filter.modelo = model;
        filter.order = MasterFilter::Order::ModeloOrig;
        for (MasterRow row : db.masterRows(filter)) {
            row.leitura.clear();
            row.porc.clear();
            row.g1.clear();
            row.g2.clear();
            row.g3.clear();
            m.rails.append({row, outgoingOrigin(find(rails, row.malha), row.refv)});
        }
        for (const QString &entry : db.i2cEntries(model))
            m.i2c.append({entry, outgoingOrigin(find(entries, entry), entry)});
        for (const DadosRecord &record : db.dadosOf(model))
            m.dados.append({record, outgoingOrigin(find(dados, record.comando), record.dados)});
        bundle.models.append(m);
    }
    bundle.masks = db.maskTexts();
    return bundle;
}

QByteArray write(const RefBundle &bundle)
{
    QJsonArray models;
    for (const RefFileModel &m : bundle.models) {
        QJsonArray rails, i2c, dados;
        for (const RefFileRail &r : m.rails)
            rails.append(QJsonObject{{QStringLiteral("malha"), r.row.malha}, {QStringLiteral("ci"), r.row.ci},
                                     {QStringLiteral("tipo"), r.row.tipo},   {QStringLiteral("orig"), r.row.orig},
                                     {QStringLiteral("reft"), r.row.reft},   {QStringLiteral("refv"), r.row.refv},
                                     {QStringLiteral("origin"), originJson(r.origin)}});
        for (const RefFileI2c &e : m.i2c)
            i2c.append(QJsonObject{{QStringLiteral("entry"), e.entry}, {QStringLiteral("origin"), originJson(e.origin)}});
        for (const RefFileDados &d : m.dados)
            dados.append(QJsonObject{{QStringLiteral("comando"), d.record.comando}, {QStringLiteral("dados"), d.record.dados},
                                     {QStringLiteral("info"), d.record.info},       {QStringLiteral("info2"), d.record.info2},
                                     {QStringLiteral("info3"), d.record.info3},     {QStringLiteral("origin"), originJson(d.origin)}});
        models.append(QJsonObject{{QStringLiteral("model"), m.model}, {QStringLiteral("rails"), rails},
                                  {QStringLiteral("i2c"), i2c}, {QStringLiteral("dados"), dados}});
    }
    const QJsonObject root{{QStringLiteral("format"), Format},
                           {QStringLiteral("version"), bundle.version},
                           {QStringLiteral("exported"), bundle.exported},
                           {QStringLiteral("program"), bundle.program},
                           {QStringLiteral("models"), models},
                           {QStringLiteral("masks"), QJsonArray::fromStringList(bundle.masks)}};
    return QJsonDocument(root).toJson(QJsonDocument::Indented);
}

ReadResult read(const QByteArray &data)
{
    ReadResult result;
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(data, &parseError);
    if (parseError.error != QJsonParseError::NoError) {
        result.problem = Problem::NotJson;
        result.detail = QStringLiteral("byte %1: %2").arg(parseError.offset).arg(parseError.errorString());
        return result;
    }
    const QJsonObject root = document.object();
    if (!document.isObject() || root.value(QStringLiteral("format")).toString() != Format) {
        result.problem = Problem::NotReferences;
        result.detail = QStringLiteral("format: \"%1\" expected").arg(Format);
        return result;
    }
    const QJsonValue version = root.value(QStringLiteral("version"));
    if (!version.isDouble() || version.toDouble() < 1 || version.toDouble() != double(version.toInt())) {
        result.problem = Problem::BadField;
        result.detail = QStringLiteral("version: whole number expected");
        return result;
    }
    if (version.toInt() > Version) {
        result.problem = Problem::NewerVersion;
        result.detail = QStringLiteral("version %1, this program reads up to %2").arg(version.toInt()).arg(Version);
        return result;
    }

    Reader in;
    RefBundle &b = result.bundle;
    b.version = version.toInt();
    b.exported = in.text(root, QStringLiteral("exported"), QStringLiteral("file"), MaxName);
    b.program = in.text(root, QStringLiteral("program"), QStringLiteral("file"), MaxName, false);
    const QJsonArray models = in.array(root, QStringLiteral("models"), QStringLiteral("file"));
    for (qsizetype n = 0; n < models.size() && !in.failed(); ++n) {
        const QString where = QStringLiteral("models[%1]").arg(n);
        const QJsonObject mo = in.object(models.at(n), where);
        RefFileModel m;
        m.model = in.text(mo, QStringLiteral("model"), where, MaxName);
        if (!in.failed() && m.model.trimmed().isEmpty())
            in.fault = where + QStringLiteral(".model: empty");
        const QJsonArray rails = in.array(mo, QStringLiteral("rails"), where);
        for (qsizetype r = 0; r < rails.size() && !in.failed(); ++r) {
            const QString here = QStringLiteral("%1.rails[%2]").arg(where).arg(r);
            const QJsonObject ro = in.object(rails.at(r), here);
            RefFileRail rail;
            rail.row.modelo = m.model;
            rail.row.malha = in.text(ro, QStringLiteral("malha"), here, MaxName);
            rail.row.ci = in.text(ro, QStringLiteral("ci"), here, MaxName, false);
            rail.row.orig = in.text(ro, QStringLiteral("orig"), here, MaxName, false);
            rail.row.reft = in.text(ro, QStringLiteral("reft"), here, MaxName, false);
            rail.row.refv = in.text(ro, QStringLiteral("refv"), here, MaxName);
            rail.row.tipo = ro.value(QStringLiteral("tipo")).toInt();
            if (!in.failed() && (rail.row.malha.isEmpty() || !isReferenceValue(rail.row.refv)))
                in.fault = here + QStringLiteral(": a net name and a reference value (0.900 or 352,4) expected");
            rail.origin = in.origin(ro, here);
            m.rails.append(rail);
        }
        const QJsonArray i2c = in.array(mo, QStringLiteral("i2c"), where);
        for (qsizetype e = 0; e < i2c.size() && !in.failed(); ++e) {
            const QString here = QStringLiteral("%1.i2c[%2]").arg(where).arg(e);
            const QJsonObject eo = in.object(i2c.at(e), here);
            RefFileI2c entry;
            entry.entry = in.text(eo, QStringLiteral("entry"), here, MaxName);
            entry.origin = in.origin(eo, here);
            m.i2c.append(entry);
        }
        const QJsonArray dados = in.array(mo, QStringLiteral("dados"), where);
        for (qsizetype d = 0; d < dados.size() && !in.failed(); ++d) {
            const QString here = QStringLiteral("%1.dados[%2]").arg(where).arg(d);
            const QJsonObject dob = in.object(dados.at(d), here);
            RefFileDados rec;
            rec.record.aparelho = m.model;
            rec.record.comando = in.text(dob, QStringLiteral("comando"), here, MaxName);
            rec.record.dados = in.text(dob, QStringLiteral("dados"), here, MaxText);
            rec.record.info = in.text(dob, QStringLiteral("info"), here, MaxText, false);
            rec.record.info2 = in.text(dob, QStringLiteral("info2"), here, MaxText, false);
            rec.record.info3 = in.text(dob, QStringLiteral("info3"), here, MaxText, false);
            if (!in.failed() && rec.record.comando.isEmpty())
                in.fault = here + QStringLiteral(".comando: empty");
            rec.origin = in.origin(dob, here);
            m.dados.append(rec);
        }
        b.models.append(m);
    }
    const QJsonArray masks = in.array(root, QStringLiteral("masks"), QStringLiteral("file"));
    for (qsizetype n = 0; n < masks.size() && !in.failed(); ++n) {
        if (!masks.at(n).isString() || masks.at(n).toString().size() > MaxName || masks.at(n).toString().isEmpty())
            in.fault = QStringLiteral("masks[%1]: a text of 1 to %2 characters expected").arg(n).arg(MaxName);
        else
            b.masks.append(masks.at(n).toString());
    }
    if (in.failed()) {
        result.problem = Problem::BadField;
        result.detail = in.fault;
        result.bundle = {};
    }
    return result;
}

ReadResult readFile(const QString &path)
{
    ReadResult result;
    QFile file(path);
    const QFileInfo info(path);
    if (!info.isFile() || !file.open(QIODevice::ReadOnly)) {
        result.problem = Problem::Unreadable;
        result.detail = !info.exists() ? QStringLiteral("file not found")
                        : !info.isFile() ? QStringLiteral("not a file")
                                         : file.errorString();
        return result;
    }
    if (file.size() > MaxBytes) {
        result.problem = Problem::Unreadable;
        result.detail = QStringLiteral("larger than %1 MB").arg(MaxBytes / (1024 * 1024));
        return result;
    }
    return read(file.readAll());
}

QString messageKey(Problem problem)
{
    switch (problem) {
    case Problem::None: return {};
    case Problem::Unreadable: return QStringLiteral("REF_ARQ_ILEGIVEL");
    case Problem::NotJson:
    case Problem::NotReferences:
    case Problem::BadField: return QStringLiteral("REF_ARQ_INVALIDO");
    case Problem::NewerVersion: return QStringLiteral("REF_ARQ_VERSAO");
    }
    return {};
}

} // namespace RefFile
