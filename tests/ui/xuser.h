#pragma once

#include <QtCore/QPoint>
#include <QtCore/QProcess>
#include <QtCore/QRect>
#include <QtCore/QRegularExpression>
#include <QtCore/QStringList>
#include <QtGui/QWindow>
#include <QtTest/QTest>

/// A user in front of the X server: keys and mouse go through the server and the window manager, and what is asked
/// about a window is what the server knows of it. Everything in device pixels.
namespace xuser {

/// Runs a tool to its end while this program's events go on, and returns what it printed.
inline QString ask(const QString &tool, const QStringList &arguments)
{
    QProcess process;
    process.start(tool, arguments);
    if (!QTest::qWaitFor([&] { return process.state() == QProcess::NotRunning; }, 20000)
        || process.exitCode() != 0)
        qWarning().noquote() << tool << arguments << "failed:" << process.readAllStandardError();
    return QString::fromUtf8(process.readAllStandardOutput());
}

inline void act(const QStringList &arguments)
{
    ask(QStringLiteral("xdotool"), arguments);
}

inline QStringList at(QPoint point)
{
    return {QString::number(point.x()), QString::number(point.y())};
}

inline void moveMouse(QPoint to)
{
    act(QStringList{QStringLiteral("mousemove")} + at(to));
}

/// From one point to another in steps, as a hand does.
inline void drag(QPoint from, QPoint to, int button = 1)
{
    moveMouse(from);
    act({QStringLiteral("mousedown"), QString::number(button)});
    for (const QPoint &step : {from + (to - from) / 3, from + (to - from) * 2 / 3, to})
        moveMouse(step);
    act({QStringLiteral("mouseup"), QString::number(button)});
}

inline void key(const QString &name)
{
    act({QStringLiteral("key"), name});
}

inline void type(const QString &text)
{
    act({QStringLiteral("type"), text});
}

/// The window's place on the root window; null while the server does not show it.
inline QRect geometry(const QWidget &window)
{
    const QString known =
        ask(QStringLiteral("xwininfo"), {QStringLiteral("-id"), QString::number(window.winId())});
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
    const QString id = QString::number(window.winId());
    const QString state =
        ask(QStringLiteral("xprop"), {QStringLiteral("-id"), id, QStringLiteral("WM_STATE")});
    const QString active =
        ask(QStringLiteral("xprop"), {QStringLiteral("-root"), QStringLiteral("_NET_ACTIVE_WINDOW")});
    return state.contains(QLatin1String("window state: Normal"))
        && active.contains(QStringLiteral("0x") + QString::number(window.winId(), 16));
}

} // namespace xuser
