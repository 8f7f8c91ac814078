#pragma once

#include <net/linkreport.h>

#include <QtCore/QDateTime>
#include <QtCore/QStringList>

/// Remembers what the user missed: times without a link, and messages that were lost. The last few lines of it.
class LinkHistory final {
public:
    /// The line of the latest thing missed, empty when nothing was.
    QString latest() const { return m_lines.isEmpty() ? QString() : m_lines.last(); }
    /// Every line kept, the oldest first.
    const QStringList &lines() const { return m_lines; }

    void add(const QString &line);
    /// The link changed its state.
    void follow(LinkReport::State state, const QDateTime &now);
    /// The link has stood for a while if it stands: an outage before it is over. Servers that hang up at once end none.
    void settle();
    /// Another server's link is a new one.
    void forgetLink();

private:
    QStringList m_lines;
    QDateTime m_downSince;
    QDateTime m_upSince;
    bool m_wasUp = false;
};
