#include "logfile.h"

#include <system/machine.h>

#include <QtCore/QDateTime>
#include <QtCore/QDir>
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
    open();
    current = this;
    nextHandler = qInstallMessageHandler(&handleMessage);
}

LogFile::~LogFile()
{
    qInstallMessageHandler(nextHandler);
    current = nullptr;
}

void LogFile::open()
{
    if (m_file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered))
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
        QFile::remove(path() + QStringLiteral(".1"));
        QFile::rename(path(), path() + QStringLiteral(".1"));
        open();
    }
    if (m_file.isOpen())
        m_file.write(bytes);
}
