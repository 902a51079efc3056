#pragma once

#include <QLocalServer>
#include <QObject>
#include <QStringList>

namespace ridelog {

/// One program per user and settings: a second start hands its files to the first and ends.
class SingleInstance : public QObject {
    Q_OBJECT

public:
    /// `name` tells programs apart that are none of each other's business.
    explicit SingleInstance(const QString& name, QObject* parent = nullptr);

    /// Hands the files to the program that runs already. False if there is none.
    bool handOver(const QStringList& paths) const;
    /// From now on this is the one that runs. What goes wrong only lets a second one start.
    void listen();

Q_SIGNALS:
    /// A second start; absolute paths, or none if it was started without files.
    void started(const QStringList& paths);

private:
    void receive();

    QString _name;
    QLocalServer _server;
};

} // namespace ridelog
