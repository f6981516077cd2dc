#pragma once
// A tiny HTTP server on 127.0.0.1 for tests of the update check: each connection gets the
// scripted answer, or no answer at all (a server that hangs). It runs in the test's thread and
// is served while the client waits in its own event loop, so nothing leaves the machine.

#include <QHostAddress>
#include <QTcpServer>
#include <QTcpSocket>

class LoopbackHttpServer : public QTcpServer
{
public:
    struct Answer
    {
        int status = 200;
        QByteArray body;
        QByteArray extraHeaders;   // e.g. "Location: ...\r\n"
        bool silent = false;       // accept the request and never answer
    };

    Answer answer;
    QList<QByteArray> requestLines; // "GET /path?query HTTP/1.1" per request

    LoopbackHttpServer()
    {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket *socket = nextPendingConnection()) {
                socket->setParent(this);
                connect(socket, &QTcpSocket::readyRead, socket, [this, socket] { serve(socket); });
            }
        });
    }

    QString url(const QString &path = QStringLiteral("/versao")) const
    {
        return QStringLiteral("http://127.0.0.1:%1%2").arg(serverPort()).arg(path);
    }

private:
    void serve(QTcpSocket *socket)
    {
        QByteArray &buffer = m_buffers[socket];
        buffer += socket->readAll();
        if (!buffer.contains("\r\n\r\n"))
            return;
        requestLines << buffer.left(buffer.indexOf("\r\n"));
        buffer.clear();
        if (answer.silent)
            return;
        QByteArray reply = "HTTP/1.1 " + QByteArray::number(answer.status) + " X\r\n"
                         + "Content-Type: text/plain\r\nContent-Length: " + QByteArray::number(answer.body.size())
                         + "\r\nConnection: close\r\n" + answer.extraHeaders + "\r\n" + answer.body;
        socket->write(reply);
        socket->disconnectFromHost();
    }

    QHash<QTcpSocket *, QByteArray> m_buffers;
};
