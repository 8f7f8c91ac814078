#pragma once

#include <QtCore/QObject>
#include <QtDBus/QDBusMessage>

#include <memory>

class QWindow;

/// What the desktop says about its look beyond the toolkit's own palette: the settings portal
/// (org.freedesktop.portal.Settings, namespace org.freedesktop.appearance), which desktops answer whose theme the
/// toolkit does not know. Nothing waits for it: until it answers, and where there is none, nothing is said.
class DesktopAppearance final : public QObject {
    Q_OBJECT

public:
    explicit DesktopAppearance(QObject *parent = nullptr);
    ~DesktopAppearance() override;

    /// Asks the portal, and goes on listening to it.
    void ask();
    bool prefersDark() const { return m_prefersDark; }
    bool prefersHighContrast() const { return m_prefersHighContrast; }

Q_SIGNALS:
    /// The portal said something new, or the toolkit's own theme changed.
    void changed();

private Q_SLOTS:
    void take(const QDBusMessage &change);

private:
    void apply(const QString &key, const QVariant &value);

    std::unique_ptr<QWindow> m_watch;
    bool m_prefersDark = false;
    bool m_prefersHighContrast = false;
};
