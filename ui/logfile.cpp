#include "logfile.h"

#include <system/machine.h>

#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QMutex>

#include <algorithm>

namespace {

constexpr qint64 kLargestFile = qint64(512) * 1024;
constexpr qsizetype kLongestText = 2000;

LogFile *current = nullptr;
QtMessageHandler nextHandler = nullptr;

const char *levelName(QtMsgType type)
{
    switch (type) {
    case QtDebugMsg:
        return "debug";
    case QtInfoMsg:
        return "info";
    case QtWarningMsg:
        return "warning";
    default:
        return "error";
    }
}

void handleMessage(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    // A library may log from a thread of its own.
    static QMutex mutex;
    {
        const QMutexLocker lock(&mutex);
        if (current)
            current->write(type, context.category ? context.category : "default", text);
    }
    if (nextHandler)
        nextHandler(type, context, text);
}

} // namespace

QString LogFile::path()
{
    const QString folder = QString::fromStdString(Machine::userStateFolder().string());
    return folder + QStringLiteral("/tarrow-alertor/alertor.log");
}

LogFile::LogFile()
    : m_file(path())
{
    QDir().mkpath(QFileInfo(m_file).path());
    open(QIODevice::Append);
    current = this;
    nextHandler = qInstallMessageHandler(&handleMessage);
}

LogFile::~LogFile()
{
    qInstallMessageHandler(nextHandler);
    current = nullptr;
}

void LogFile::open(QIODevice::OpenMode mode)
{
    // A named pipe would wait for whoever reads it.
    const QFileInfo found(m_file);
    if (found.exists() && !found.isFile())
        return;
    if (m_file.open(QIODevice::WriteOnly | QIODevice::Unbuffered | mode))
        m_file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
}

void LogFile::write(QtMsgType type, const char *category, const QString &text)
{
    QString line = QStringLiteral("%1 %2 %3: ")
                       .arg(QDateTime::currentDateTime().toString(Qt::ISODateWithMs),
                            QLatin1String(levelName(type)), QLatin1String(category));
    line += text.first(std::min(text.size(), kLongestText));
    std::replace_if(
        line.begin(), line.end(), [](QChar c) { return c.category() == QChar::Other_Control; }, QChar(u' '));
    const QByteArray bytes = line.toUtf8() + '\n';
    if (m_file.isOpen() && m_file.size() + bytes.size() > kLargestFile) {
        m_file.close();
        const QString before = path() + QStringLiteral(".1");
        QFile::remove(before);
        // What cannot be moved away starts anew, or it would grow for ever.
        open(QFile::rename(path(), before) ? QIODevice::Append : QIODevice::Truncate);
    }
    if (m_file.isOpen())
        m_file.write(bytes);
}
