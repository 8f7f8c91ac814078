#include "stylesheets.h"

#include "theme.h"

#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtGui/QPalette>

#include <array>
#include <utility>

namespace {

constexpr std::array<std::pair<const char *, QPalette::ColorRole>, 16> kRoles{{
    {"window", QPalette::Window},
    {"window-text", QPalette::WindowText},
    {"base", QPalette::Base},
    {"alternate-base", QPalette::AlternateBase},
    {"text", QPalette::Text},
    {"placeholder-text", QPalette::PlaceholderText},
    {"button", QPalette::Button},
    {"button-text", QPalette::ButtonText},
    {"bright-text", QPalette::BrightText},
    {"midlight", QPalette::Midlight},
    {"mid", QPalette::Mid},
    {"dark", QPalette::Dark},
    {"shadow", QPalette::Shadow},
    {"highlight", QPalette::Highlight},
    {"highlighted-text", QPalette::HighlightedText},
    {"link", QPalette::Link},
}};

QString textOf(const QString &name)
{
    QFile file(QStringLiteral(":/Styles/") + name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString colourOf(QStringView role, const QPalette &palette, QPalette::ColorGroup group)
{
    for (const auto &[name, known] : kRoles) {
        if (role == QLatin1String(name))
            return palette.color(group, known).name();
    }
    return QStringLiteral("palette(%1)").arg(role);
}

/// The sheet with the palette's colours and pictures.
QString resolved(QString sheet, const QPalette &palette)
{
    const auto folder = [](bool isLight) {
        return isLight ? QStringLiteral("/light/") : QStringLiteral("/dark/");
    };
    const bool hasLightMarks = palette.color(QPalette::HighlightedText).lightnessF() > 0.5F;
    sheet.replace(QStringLiteral("/ink/"), folder(Theme::isDark(palette)));
    sheet.replace(QStringLiteral("/mark/"), folder(hasLightMarks));

    static const QRegularExpression wanted(QStringLiteral("palette\\(([a-z-]+)\\)"));
    QString result;
    qsizetype done = 0;
    for (auto match = wanted.globalMatch(sheet); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        const qsizetype body = sheet.lastIndexOf(u'{', found.capturedStart());
        const qsizetype before = body > 0 ? sheet.lastIndexOf(u'}', body) : -1;
        const bool isDisabled =
            body > 0 && QStringView(sheet).mid(before + 1, body - before).contains(u":disabled");
        result += QStringView(sheet).mid(done, found.capturedStart() - done);
        result +=
            colourOf(found.capturedView(1), palette, isDisabled ? QPalette::Disabled : QPalette::Active);
        done = found.capturedEnd();
    }
    return result += QStringView(sheet).mid(done);
}

} // namespace

QString StyleSheets::forProgram(const QPalette &palette)
{
    return resolved(textOf(QStringLiteral("tarrow.qss")) + textOf(QStringLiteral("shared.qss")), palette);
}

QString StyleSheets::forViewer()
{
    static const QString sheet =
        resolved(textOf(QStringLiteral("tarrow.qss")) + textOf(QStringLiteral("shared.qss"))
                     + textOf(QStringLiteral("viewer.qss")),
                 Theme::neutral());
    return sheet;
}
