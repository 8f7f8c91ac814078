#pragma once

#include <net/dispatchersession.h>

#include <QtCore/QObject>
#include <QtCore/QTimer>

/// Tries once to connect and to log in, over a link of its own that is closed afterwards. A Dispatcher answers a log-in only to
/// refuse it: one that says nothing for two seconds is taken to have accepted.
class ConnectionTest final : public QObject {
    Q_OBJECT

public:
    enum class Stage {
        Idle,
        Connecting,
        LoggingIn, ///< connected, the log-in sent
        NotRefused,
        Refused,
        NameUnknown,
        NobodyListens,
        NoAnswer,
        NoDispatcher, ///< something else answers
        HungUp, ///< right after the log-in
        Failed, ///< for a reason that the system tells
    };

    explicit ConnectionTest(QObject *parent = nullptr);

    Stage stage() const { return m_stage; }
    /// Says how far it came, as one line of plain text.
    QString words() const;

    /// Starts anew, also while it runs.
    void start(const LinkSettings &settings);
    void stop();

Q_SIGNALS:
    void stageChanged();

private:
    bool isRunning() const { return m_stage == Stage::Connecting || m_stage == Stage::LoggingIn; }
    void waitForRefusal();
    void noteError(QAbstractSocket::SocketError error);
    void noteTrouble();
    void noteEnd();
    void readMessages();
    void outOfPatience();
    void finish(Stage stage);
    void enter(Stage stage);

    DispatcherSession m_session;
    QTimer m_patience;
    Stage m_stage = Stage::Idle;
};
