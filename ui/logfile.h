#pragma once

#include <QtCore/QFile>
#include <QtCore/QString>

/// Writes what the program logs into a file of the user's state folder as well, for as long as it lives; one at a time.
/// It and the file before it, with ".1" behind its name, hold 1 MiB together. A file that cannot be written is done without.
class LogFile final {
public:
    LogFile();
    ~LogFile();
    Q_DISABLE_COPY_MOVE(LogFile)

    /// Where the log is, or would be.
    static QString path();

    /// Adds a line with the time in front; a control character becomes a blank, a very long text is cut.
    void write(QtMsgType type, const char *category, const QString &text);

private:
    void open(QIODevice::OpenMode mode);

    QFile m_file;
};
