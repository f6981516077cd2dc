#include "Http.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>

namespace {

bool webScheme(const QUrl &url)
{
    return url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
}

} // namespace

HttpReply QtHttp::get(const QUrl &url, std::chrono::milliseconds deadline, qint64 maxBytes)
{
    HttpReply result;
    if (!url.isValid() || !webScheme(url) || url.host().isEmpty()) {
        result.detail = QStringLiteral("not a web address: %1").arg(url.toString());
        return result;
    }

    QNetworkAccessManager manager;
    QNetworkRequest request(url);
    // Every redirect is looked at below: a move to another scheme (https to http, or to ftp:)
    // is refused, so an answer never arrives through a weaker channel than was asked for.
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::UserVerifiedRedirectPolicy);
    request.setMaximumRedirectsAllowed(3);
    request.setRawHeader("Accept", "text/plain");

    QNetworkReply *reply = manager.get(request);
    QEventLoop loop;
    QTimer timer;
    timer.setSingleShot(true);
    bool timedOut = false;
    bool tooLarge = false;
    QString refused;

    QObject::connect(&timer, &QTimer::timeout, &loop, [&] {
        timedOut = true;
        reply->abort();
    });
    QObject::connect(reply, &QNetworkReply::redirected, &loop, [&](const QUrl &target) {
        const QUrl resolved = reply->url().resolved(target);
        if (resolved.scheme() != url.scheme()) {
            refused = QStringLiteral("redirect to another scheme refused: %1").arg(resolved.toString());
            reply->abort();
            return;
        }
        emit reply->redirectAllowed();
    });
    QObject::connect(reply, &QNetworkReply::downloadProgress, &loop, [&](qint64 received, qint64 total) {
        // A declared length past the cap is refused before its bytes arrive.
        if (received > maxBytes || total > maxBytes) {
            tooLarge = true;
            reply->abort();
        }
    });
    QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    timer.start(deadline);
    if (!reply->isFinished())
        loop.exec(QEventLoop::ExcludeUserInputEvents);
    timer.stop();

    result.httpStatus = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    if (tooLarge) {
        result.status = HttpReply::Status::TooLarge;
        result.detail = QStringLiteral("the answer is larger than %1 bytes").arg(maxBytes);
    } else if (timedOut || reply->error() == QNetworkReply::TimeoutError) {
        result.status = HttpReply::Status::TimedOut;
        result.detail = QStringLiteral("no complete answer within %1 ms").arg(deadline.count());
    } else if (!refused.isEmpty()) {
        result.detail = refused;
    } else if (result.httpStatus != 0 && (result.httpStatus < 200 || result.httpStatus > 299)) {
        result.status = HttpReply::Status::HttpError;
        result.detail = QStringLiteral("HTTP status %1").arg(result.httpStatus);
    } else if (reply->error() != QNetworkReply::NoError) {
        result.detail = reply->errorString();
    } else {
        const QByteArray body = reply->readAll();
        if (body.size() > maxBytes) {
            result.status = HttpReply::Status::TooLarge;
            result.detail = QStringLiteral("the answer is larger than %1 bytes").arg(maxBytes);
        } else {
            result.status = HttpReply::Status::Ok;
            result.body = body;
        }
    }
    delete reply;
    return result;
}
