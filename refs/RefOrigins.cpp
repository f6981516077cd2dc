#include "RefOrigins.h"

#include "Texts.h"

namespace RefOrigins {

State state(const std::optional<RefOrigin> &origin, const QString &current)
{
    if (!origin)
        return State::Unknown;
    if (origin->value != current)
        return State::Changed;
    if (origin->source == Demo)
        return State::Demo;
    if (origin->source == Learned)
        return State::Learned;
    if (origin->source == Imported)
        return State::Imported;
    return State::Unknown;
}

QString stateName(State state)
{
    switch (state) {
    case State::Unknown: return QStringLiteral("unknown");
    case State::Demo: return Demo;
    case State::Learned: return Learned;
    case State::Imported: return Imported;
    case State::Changed: return QStringLiteral("changed");
    }
    return {};
}

QString stamp(const QDateTime &moment)
{
    return moment.toUTC().toString(Qt::ISODate);
}

namespace {

QString localTime(const QString &iso)
{
    const QDateTime moment = QDateTime::fromString(iso, Qt::ISODate);
    return moment.isValid() ? moment.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm")) : iso;
}

// What the origin row itself says, whatever became of the value since.
QString sourceText(const RefOrigin &o, quint8 idioma)
{
    if (o.source == Demo)
        return Texts::Traduz(QStringLiteral("REF_ORIGEM_DEMO"), idioma);
    QString text;
    if (o.source == Imported)
        text = Texts::Traduz(QStringLiteral("REF_ORIGEM_IMPORTADA"), idioma).arg(o.file, localTime(o.fileDate));
    if (o.boards > 0) {
        if (!text.isEmpty())
            text += u'\n';
        text += Texts::Traduz(QStringLiteral("REF_ORIGEM_APRENDIDA"), idioma)
                    .arg(QString::number(o.boards), localTime(o.at), o.version);
        if (!o.serials.isEmpty())
            text += u'\n' + Texts::Traduz(QStringLiteral("REF_ORIGEM_SERIES"), idioma).arg(o.serials);
    }
    if (text.isEmpty())
        text = Texts::Traduz(QStringLiteral("REF_ORIGEM_DESCONHECIDA"), idioma);
    return text;
}

} // namespace

QString describe(const std::optional<RefOrigin> &origin, const QString &current, quint8 idioma)
{
    if (!origin)
        return Texts::Traduz(QStringLiteral("REF_ORIGEM_DESCONHECIDA"), idioma);
    if (origin->value != current)
        return Texts::Traduz(QStringLiteral("REF_ORIGEM_ALTERADA"), idioma) + u'\n' + sourceText(*origin, idioma);
    return sourceText(*origin, idioma);
}

bool incomingWins(const std::optional<RefOrigin> &local, const QString &localValue, const RefOrigin &incoming)
{
    return incomingWins(state(local, localValue), local ? local->at : QString(), incoming);
}

bool incomingWins(State local, const QString &localAt, const RefOrigin &incoming)
{
    if (local == State::Demo)
        return incoming.source != Demo;
    if (local == State::Unknown || local == State::Changed)
        return false;
    const QDateTime mine = QDateTime::fromString(localAt, Qt::ISODate);
    const QDateTime theirs = QDateTime::fromString(incoming.at, Qt::ISODate);
    return theirs.isValid() && (!mine.isValid() || theirs > mine);
}

} // namespace RefOrigins
