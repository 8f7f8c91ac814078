#include "stylesheets.h"

#include "theme.h"

#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtGui/QFont>
#include <QtGui/QPalette>
#include <QtWidgets/QApplication>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace {

constexpr double kSmallestPoints = 9;
constexpr double kViewerStep = 0.75; // of the other windows' text

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

/// The sheet for what lies within others alone.
QString within(const QString &outer, QString sheet)
{
    static const QRegularExpression comment(QStringLiteral("/\\*.*?\\*/"),
                                            QRegularExpression::DotMatchesEverythingOption);
    QString result;
    for (const QString &rule : sheet.remove(comment).split(u'}', Qt::SkipEmptyParts)) {
        const qsizetype body = rule.indexOf(u'{');
        if (body < 0)
            continue;
        QStringList selectors = rule.left(body).split(u',');
        for (QString &selector : selectors)
            selector = outer + selector.trimmed();
        result += selectors.join(u',') + rule.mid(body) + u'}';
    }
    return result;
}

/// A step smaller than in the other windows, but no smaller than a desktop's usual size. A rule, since under a sheet a
/// widget's font does not reach its children.
QString viewerText()
{
    const double size = QApplication::font().pointSizeF();
    const double wanted = std::round(std::max(kSmallestPoints, size * kViewerStep));
    return wanted < size ? QStringLiteral("ImageViewer QWidget{font-size:%1pt}").arg(wanted) : QString();
}

bool isViewerWanted = false;

} // namespace

QString StyleSheets::forProgram(const QPalette &palette)
{
    return resolved(textOf(QStringLiteral("tarrow.qss")) + textOf(QStringLiteral("shared.qss")), palette);
}

QString StyleSheets::forViewer()
{
    static const QString sheet =
        within(QStringLiteral("ImageViewer "),
               resolved(textOf(QStringLiteral("tarrow.qss")) + textOf(QStringLiteral("shared.qss"))
                            + textOf(QStringLiteral("viewer.qss")),
                        Theme::neutral()));
    return sheet + viewerText();
}

void StyleSheets::install(QApplication &application, const QPalette &palette)
{
    const QString sheet = forProgram(palette) + (isViewerWanted ? forViewer() : QString());
    if (!sheet.isEmpty())
        application.setStyleSheet(sheet);
}

void StyleSheets::wantViewer(QApplication &application)
{
    if (!std::exchange(isViewerWanted, true))
        application.setStyleSheet(application.styleSheet() + forViewer());
}
