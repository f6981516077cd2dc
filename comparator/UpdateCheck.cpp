#include "UpdateCheck.h"

#include "Http.h"

#include <QStringDecoder>
#include <QUrlQuery>

namespace UpdateCheck {

namespace {

// The text between the first `open` and the next `close`; empty when either is missing.
QString between(const QString &text, QChar open, QChar close)
{
    const qsizetype start = text.indexOf(open);
    if (start < 0)
        return {};
    const qsizetype end = text.indexOf(close, start + 1);
    if (end < 0)
        return {};
    return text.mid(start + 1, end - start - 1);
}

// A version page answers in text; bytes that are not UTF-8 or carry control characters are
// something else (an image, a compressed body) and are not read as an update notice.
bool isText(const QByteArray &body, QString *text)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    *text = decoder.decode(body);
    if (decoder.hasError())
        return false;
    for (const QChar c : std::as_const(*text))
        if (c.unicode() < 0x20 && c != u'\r' && c != u'\n' && c != u'\t')
            return false;
    return true;
}

} // namespace

Outcome parse(const QString &answer)
{
    Outcome outcome;
    // A line end after "OK" is the web server's, not the page's word.
    const QString trimmed = answer.trimmed();
    if (trimmed.isEmpty() || trimmed == QLatin1String("OK")) {
        outcome.kind = Kind::Current;
        return outcome;
    }
    outcome.message = between(answer, u'[', u']');
    outcome.mode = between(answer, u'(', u')');
    outcome.kind = outcome.mode == QLatin1String("O") ? Kind::Mandatory : Kind::Optional;
    return outcome;
}

QUrl requestUrl(const QString &endpoint, const QString &versao)
{
    QUrl url(endpoint.trimmed(), QUrl::StrictMode);
    if (endpoint.trimmed().isEmpty() || !url.isValid() || url.host().isEmpty()
        || (url.scheme() != QLatin1String("http") && url.scheme() != QLatin1String("https")))
        return {};
    QUrlQuery query(url);
    query.removeAllQueryItems(QStringLiteral("versao"));
    query.addQueryItem(QStringLiteral("versao"), versao);
    url.setQuery(query);
    return url;
}

Outcome check(Http &http, const QString &endpoint, const QString &versao)
{
    Outcome outcome;
    if (endpoint.trimmed().isEmpty()) {
        outcome.detail = QStringLiteral("no version page is set");
        return outcome;
    }
    const QUrl url = requestUrl(endpoint, versao);
    if (!url.isValid()) {
        outcome.detail = QStringLiteral("not an http or https address: %1").arg(endpoint);
        return outcome;
    }
    const HttpReply reply = http.get(url, Deadline, MaxBytes);
    if (reply.status != HttpReply::Status::Ok) {
        outcome.detail = reply.detail;
        return outcome;
    }
    QString text;
    if (!isText(reply.body, &text)) {
        outcome.detail = QStringLiteral("the answer is not text");
        return outcome;
    }
    return parse(text);
}

bool isSafeDownloadPage(const QString &address)
{
    const QUrl url(address.trimmed(), QUrl::StrictMode);
    return url.isValid() && url.scheme() == QLatin1String("https") && !url.host().isEmpty();
}

QString kindText(Kind kind)
{
    switch (kind) {
    case Kind::Current: return QStringLiteral("current");
    case Kind::Optional: return QStringLiteral("optional");
    case Kind::Mandatory: return QStringLiteral("mandatory");
    case Kind::NoAnswer: break;
    }
    return QStringLiteral("no answer");
}

} // namespace UpdateCheck
