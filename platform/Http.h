#pragma once
// The one way the program talks to the web: a GET with a deadline and a byte cap, for the
// version check at start-up. Behind an interface so the start-up logic can be tested with a
// loopback server or a fake, and so no caller can forget the limits: the start never waits long
// and never swallows a large answer.

#include <QByteArray>
#include <QString>
#include <QUrl>
#include <chrono>

struct HttpReply
{
    enum class Status {
        Ok,          // a 2xx answer within the limits; `body` holds it
        Failed,      // no connection, a refused redirect, a TLS error, an unsupported address
        HttpError,   // the server answered with a status outside 2xx
        TimedOut,    // the deadline passed before the answer was complete
        TooLarge,    // the answer went past the byte cap; `body` is dropped
    };
    Status status = Status::Failed;
    int httpStatus = 0;
    QByteArray body;
    QString detail; // what went wrong, for logs and the command line
};

class Http
{
public:
    virtual ~Http() = default;
    // A GET of `url` (http or https only). Redirects are followed only within the same scheme.
    virtual HttpReply get(const QUrl &url, std::chrono::milliseconds deadline, qint64 maxBytes) = 0;
};

// QNetworkAccessManager, waited for in a local event loop: the start-up needs the answer before
// it goes on, and the deadline bounds the wait.
class QtHttp : public Http
{
public:
    HttpReply get(const QUrl &url, std::chrono::milliseconds deadline, qint64 maxBytes) override;
};
