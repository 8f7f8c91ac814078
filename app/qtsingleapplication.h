#pragma once

#include <QtCore/QLockFile>
#include <QtNetwork/QLocalServer>
#include <QtWidgets/QApplication>

#include <memory>

/// An application of which each user runs one instance. The first to start holds a lock in the user's own runtime
/// folder and listens there; later ones find it held and may send the first a message. A lock whose holder crashed is
/// free. Where no folder is to be had, every start counts as the first.
class QtSingleApplication final : public QApplication {
    Q_OBJECT

public:
    QtSingleApplication(int &argc, char **argv);
    ~QtSingleApplication() override;

    bool isRunning() const { return m_runs; }
    /// Hands a message to the running instance; false when it did not take it within `timeout` milliseconds.
    bool sendMessage(const QString &message, int timeout);

Q_SIGNALS:
    void messageReceived(const QString &message);

private:
    void listen();
    void takeMessage();

    QString m_serverName;
    std::unique_ptr<QLockFile> m_lock;
    QLocalServer m_server;
    bool m_runs = false;
};
