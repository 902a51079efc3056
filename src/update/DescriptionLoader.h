#pragma once

#include "update/UpdateFailure.h"

#include <QByteArray>
#include <QNetworkAccessManager>
#include <QObject>
#include <QTimer>
#include <QUrl>

#include <chrono>

QT_FORWARD_DECLARE_CLASS(QNetworkReply)

namespace ridelog {

/// Loads the description of an update from the web or from a file, up to a size and within a time.
class DescriptionLoader : public QObject {
    Q_OBJECT

public:
    /// Bytes: 1 MiB. What is larger is refused, and not read to its end.
    static constexpr qint64 largest = 1 << 20;

    explicit DescriptionLoader(QObject* parent = nullptr);

    /// Whether this is an address of the web: http or https.
    static bool isWebAddress(const QUrl& url);
    /// Whether it is one of the web or of a file.
    static bool isLoadable(const QUrl& url);

    /// How long it may take from the request to the last byte, on every way round: 10 s unless set.
    void setTimeLimit(std::chrono::milliseconds limit) { _timeLimit.setInterval(limit); }

    /// Starts to load. Either signal is emitted later, once.
    void load(const QUrl& url);

Q_SIGNALS:
    void loaded(const QByteArray& bytes);
    void failed(const ridelog::UpdateFailure& why);

private:
    void loadFromWeb(const QUrl& url);
    void loadFromFile(const QString& path);
    void take();
    void finish();
    void giveUp(const UpdateFailure& why);
    static UpdateFailure tooLarge();
    UpdateFailure tooSlow() const;

    QNetworkAccessManager _network;
    QNetworkReply* _reply = nullptr; ///< while one is awaited
    QByteArray _bytes;
    QTimer _timeLimit;
};

} // namespace ridelog
