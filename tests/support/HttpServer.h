#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

#include <stdexcept>

namespace ridelog {

/// A web server on this machine that says what a test tells it to. It is silent where it was told nothing.
class HttpServer {
public:
    HttpServer()
    {
        // Whatever way to the web the machine has, this is not it.
        qputenv("no_proxy", "127.0.0.1");
        if (!_server.listen(QHostAddress::LocalHost))
            throw std::runtime_error("no local server");
        QObject::connect(&_server, &QTcpServer::newConnection, &_server, [this] {
            while (auto* connection = _server.nextPendingConnection())
                QObject::connect(connection, &QTcpSocket::readyRead, &_server,
                                 [this, connection] { answer(*connection); });
        });
    }

    QString url(const char* path) const
    {
        return QStringLiteral("http://127.0.0.1:%1/%2").arg(_server.serverPort()).arg(QLatin1String(path));
    }

    /// Answers a request for this path so, and ends the connection.
    void serve(const char* path, const QByteArray& body, const QByteArray& status = "200 OK",
               const QByteArray& headers = {})
    {
        _answers["/" + QByteArray(path)] =
            "HTTP/1.1 " + status + "\r\nConnection: close\r\n" + headers + "\r\n" + body;
    }
    void redirect(const char* path, const QString& target)
    {
        serve(path, {}, "302 Found", "Location: " + target.toUtf8() + "\r\nContent-Length: 0\r\n");
    }
    /// Begins with this answer and goes on with a blank now and then, for ever.
    void trickle(const char* path, const QByteArray& body)
    {
        serve(path, body);
        _endless = "/" + QByteArray(path);
    }

    /// A client sends one again whose connection has just ended.
    int requests() const { return _requests; }

private:
    void answer(QTcpSocket& connection)
    {
        const auto words = connection.readAll().split(' ');
        const auto path = words.value(1);
        ++_requests;
        if (!_answers.contains(path))
            return;
        connection.write(_answers[path]);
        if (path != _endless)
            return connection.disconnectFromHost();
        auto* drops = new QTimer(&connection);
        drops->callOnTimeout(&connection, [&connection] { connection.write(" "); });
        drops->start(1);
    }

    QTcpServer _server;
    QHash<QByteArray, QByteArray> _answers;
    QByteArray _endless;
    int _requests = 0;
};

} // namespace ridelog
