#include "plaintext.h"

#include <QtGui/QTextDocument>

#include <algorithm>

namespace {

constexpr qsizetype kLongest = 500;
constexpr qsizetype kMostBytesPerCharacter = 3; // of UTF-8, for each character of UTF-16
constexpr qsizetype kToolTipLine = 100;

bool breaksLine(QChar character)
{
    switch (character.unicode()) {
    case '\n':
    case '\v':
    case '\f':
    case '\r':
    case 0x85: // next line
    case QChar::LineSeparator:
    case QChar::ParagraphSeparator:
        return true;
    default:
        return false;
    }
}

/// Characters of the text's first line on a tooltip, up to a blank where there is one.
qsizetype lineLength(QStringView text)
{
    if (text.size() <= kToolTipLine)
        return text.size();
    const qsizetype blank = text.first(kToolTipLine).lastIndexOf(u' ');
    return blank < 0 ? kToolTipLine : blank + 1;
}

} // namespace

QString shortened(QStringView text)
{
    const QStringView head = text.first(std::min(text.size(), kLongest));
    const auto *const begin = std::find_if_not(head.begin(), head.end(), breaksLine);
    const auto *const end = std::find_if(begin, head.end(), breaksLine);
    QString line(begin, end - begin);
    const bool isWhole = head.size() == text.size() && std::all_of(end, head.end(), breaksLine);
    for (QChar &character : line) {
        if (character.category() == QChar::Other_Control)
            character = u' ';
    }
    if (isWhole)
        return line;
    if (!line.isEmpty() && line.back().isHighSurrogate())
        line.chop(1); // the cut went through a character
    return line + u'\u2026';
}

QString shortened(std::string_view utf8)
{
    return shortened(QString::fromUtf8(utf8.substr(0, kLongest * kMostBytesPerCharacter + 1)));
}

QString keptPlain(const QString &text)
{
    return Qt::mightBeRichText(text)
        ? QStringLiteral("<p style=\"white-space: pre\">%1</p>").arg(text.toHtmlEscaped())
        : text;
}

QString plainToolTip(QStringView text)
{
    const QString line = shortened(text);
    QStringList lines;
    for (QStringView left = line; !left.isEmpty(); left = left.sliced(lines.last().size()))
        lines += left.first(lineLength(left)).toString();
    return keptPlain(lines.join(u'\n'));
}
