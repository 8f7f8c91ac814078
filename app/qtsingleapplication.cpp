#include "qtsingleapplication.h"

#include <ui/applog.h>

#include <QtCore/QDeadlineTimer>
#include <QtCore/QDir>
#include <QtCore/QStandardPaths>
#include <QtCore/QThread>
#include <QtCore/QTimer>
#include <QtNetwork/QLocalSocket>

namespace {

constexpr qint64 kLongestMessage = 4096; // bytes
constexpr int kAtOnce = 16; // connections
constexpr unsigned long kRetry = 50; // milliseconds
constexpr int kPatience = 5000; // milliseconds

/// A folder that other users can neither read nor write; empty when there is none.
QString ownFolder()
{
    QString runtime = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (!runtime.isEmpty())
        return runtime;
    const QString cache = QStandardPaths::writableLocation(QStandardPaths::CacheLocation);
    const bool made = QDir().mkpath(cache)
        && QFile::setPermissions(cache, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return made ? cache : QString();
}

} // namespace

QtSingleApplication::QtSingleApplication(int &argc, char **argv)
    : QApplication(argc, argv)
{
    const QString folder = ownFolder();
    if (folder.isEmpty()) {
        qCWarning(lcApp, "Cannot find a folder for the lock; a second instance goes unnoticed");
        return;
    }
    // An absolute name: others would stand in a folder that all users share.
    m_serverName = folder + QStringLiteral("/tarrow-alertor.socket");
    m_lock = std::make_unique<QLockFile>(folder + QStringLiteral("/tarrow-alertor.lock"));
    m_lock->setStaleLockTime(0);
    m_runs = !m_lock->tryLock(0) && m_lock->error() == QLockFile::LockFailedError;
    if (!m_runs)
        listen();
}

QtSingleApplication::~QtSingleApplication() = default;

void QtSingleApplication::listen()
{
    connect(&m_server, &QLocalServer::newConnection, this, &QtSingleApplication::takeMessage);
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    m_server.setMaxPendingConnections(kAtOnce);
    // What is there was left by an instance that crashed: the lock is ours.
    QLocalServer::removeServer(m_serverName);
    if (!m_server.listen(m_serverName))
        qCWarning(lcApp, "Cannot listen for later starts: %s", qUtf8Printable(m_server.errorString()));
}

void QtSingleApplication::takeMessage()
{
    while (QLocalSocket *sender = m_server.nextPendingConnection()) {
        sender->setReadBufferSize(kLongestMessage);
        connect(sender, &QLocalSocket::disconnected, sender, &QObject::deleteLater);
        QTimer::singleShot(kPatience, sender, &QLocalSocket::abort);
        connect(sender, &QLocalSocket::readyRead, this, [this, sender] {
            // A message ends with a zero byte; what grows without one is none.
            const QByteArray begun = sender->peek(kLongestMessage);
            const qsizetype end = begun.indexOf('\0');
            if (end >= 0)
                Q_EMIT messageReceived(QString::fromUtf8(begun.first(end)));
            if (end >= 0 || begun.size() >= kLongestMessage)
                sender->abort();
        });
    }
}

bool QtSingleApplication::sendMessage(const QString &message, int timeout)
{
    const QDeadlineTimer deadline(timeout);
    QLocalSocket socket;
    socket.connectToServer(m_serverName, QIODevice::WriteOnly);
    // The first instance may hold the lock and not listen yet.
    while (!socket.waitForConnected(int(deadline.remainingTime()))) {
        if (deadline.hasExpired())
            return false;
        QThread::msleep(kRetry);
        socket.connectToServer(m_serverName, QIODevice::WriteOnly);
    }
    socket.write(message.toUtf8() + '\0');
    return socket.waitForBytesWritten(int(deadline.remainingTime()));
}
