#pragma once

#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtTest/QTest>
#include <QtWidgets/QWidget>

/// A user in front of the X server: keys and mouse go through the server and the window manager, and what is asked
/// about a window is what the server knows of it. Everything in device pixels.
namespace xuser {

/// Runs a tool to its end while this program's events go on, and returns what it printed.
inline QString ask(const QString &commandLine)
{
    QProcess process;
    process.startCommand(commandLine);
    if (!QTest::qWaitFor([&] { return process.state() == QProcess::NotRunning; }, 20000)
        || process.exitCode() != 0)
        qWarning().noquote() << commandLine << "failed:" << process.readAllStandardError();
    return QString::fromUtf8(process.readAllStandardOutput());
}

inline void act(const QString &actions)
{
    ask(QStringLiteral("xdotool ") + actions);
}
inline void key(const QString &name)
{
    act(QStringLiteral("key ") + name);
}
inline void moveMouse(QPoint to)
{
    act(QStringLiteral("mousemove %1 %2").arg(to.x()).arg(to.y()));
}

/// From one point to another in steps, as a hand does.
inline void drag(QPoint from, QPoint to, int button = 1)
{
    moveMouse(from);
    act(QStringLiteral("mousedown %1").arg(button));
    for (const QPoint &step : {from + (to - from) / 3, from + (to - from) * 2 / 3, to})
        moveMouse(step);
    act(QStringLiteral("mouseup %1").arg(button));
}

inline void doubleClick(QPoint at)
{
    moveMouse(at);
    act(QStringLiteral("click --repeat 2 --delay 50 1"));
}

/// The window's place on the root window; null while the server does not show it.
inline QRect geometry(const QWidget &window)
{
    const QString known = ask(QStringLiteral("xwininfo -id %1").arg(window.winId()));
    const auto number = [&](const char *label) {
        const QRegularExpression line(QLatin1String(label) + QStringLiteral(":\\s+(-?\\d+)"));
        return line.match(known).captured(1).toInt();
    };
    if (!known.contains(QLatin1String("IsViewable")))
        return {};
    return {number("Absolute upper-left X"), number("Absolute upper-left Y"), number("Width"),
            number("Height")};
}

/// Whether the window manager has taken the window on and gives it the keyboard.
inline bool isManagedAndActive(const QWidget &window)
{
    return ask(QStringLiteral("xprop -id %1 WM_STATE").arg(window.winId()))
               .contains(QLatin1String("window state: Normal"))
        && ask(QStringLiteral("xprop -root _NET_ACTIVE_WINDOW"))
               .contains(QStringLiteral("0x%1").arg(window.winId(), 0, 16));
}

} // namespace xuser
