#include "desktops.h"
#include "windowbook.h"

#include <ui/glprobe.h>
#include <ui/language.h>
#include <ui/look.h>
#include <ui/product.h>
#include <ui/tappstate.h>
#include <ui/theme.h>

#include <QtCore/QTranslator>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>
#include <cstdio>
#include <map>
#include <set>

namespace {

constexpr double kTextContrast = 4.5;
constexpr double kStateContrast = 3;

/// The strongest contrast in a picture to the colour that fills most of it, among what is not as it was before.
double contrastIn(const QImage &picture, const QImage &before = {})
{
    std::map<QRgb, int> counts;
    std::set<QRgb> changed;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            ++counts[picture.pixel(x, y)];
            if (before.isNull() || before.pixel(x, y) != picture.pixel(x, y))
                changed.insert(picture.pixel(x, y));
        }
    }
    const auto most = std::max_element(counts.begin(), counts.end(), [](const auto &one, const auto &other) {
        return one.second < other.second;
    });
    double strongest = 1;
    for (const QRgb colour : changed)
        strongest = std::max(strongest, Theme::contrast(QColor(colour), QColor(most->first)));
    return strongest;
}

/// The strongest contrast of a place to what it was before.
double changeBetween(const QImage &before, const QImage &after)
{
    double strongest = 1;
    for (int y = 0; y < after.height(); ++y) {
        for (int x = 0; x < after.width(); ++x)
            strongest = std::max(strongest, Theme::contrast(before.pixelColor(x, y), after.pixelColor(x, y)));
    }
    return strongest;
}

QString textOf(const QWidget &widget)
{
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
        return button->text();
    if (const auto *label = qobject_cast<const QLabel *>(&widget))
        return label->text();
    if (const auto *field = qobject_cast<const QLineEdit *>(&widget))
        return field->text();
    const auto *box = qobject_cast<const QComboBox *>(&widget);
    return box ? box->currentText() : QString();
}

/// Signs are told apart by less than letters are.
bool showsIcon(const QWidget &widget)
{
    const auto *button = qobject_cast<const QToolButton *>(&widget);
    return button && !button->icon().isNull();
}

bool isRead(const QWidget &widget)
{
    return widget.isVisible() && widget.isEnabled() && !textOf(widget).isEmpty()
        && !widget.visibleRegion().isEmpty();
}

/// What does not fit: a text wider or higher than its place.
QString cutOff(const QWidget &widget)
{
    if (!isRead(widget) || qobject_cast<const QLineEdit *>(&widget))
        return {};
    const auto *label = qobject_cast<const QLabel *>(&widget);
    const bool isWrapped = label && label->wordWrap();
    const QSize needed =
        isWrapped ? QSize(0, widget.heightForWidth(widget.width())) : widget.minimumSizeHint();
    const bool mayGiveWay = widget.sizePolicy().horizontalPolicy() == QSizePolicy::Ignored;
    // A pixel of air is lost in the toolkit's own boxes, and at broken scales.
    if (widget.height() + 1 >= needed.height() && (mayGiveWay || widget.width() + 1 >= needed.width()))
        return {};
    return QStringLiteral("%1 \"%2\" %3x%4 of %5x%6")
        .arg(widget.objectName(), textOf(widget))
        .arg(widget.width())
        .arg(widget.height())
        .arg(needed.width())
        .arg(needed.height());
}

/// Siblings that lie over each other; those that are stacked on purpose have no text.
QString overlapping(const QWidget &widget)
{
    for (const QObject *sibling : widget.parent() ? widget.parent()->children() : QObjectList()) {
        const auto *other = qobject_cast<const QWidget *>(sibling);
        if (other && other != &widget && !other->isWindow() && isRead(*other)
            && other->geometry().intersects(widget.geometry()))
            return QStringLiteral("%1 \"%2\" over \"%3\"")
                .arg(widget.objectName(), textOf(widget), textOf(*other));
    }
    return {};
}

/// Pixels of a title, without the lines around it.
int titleInk(QHeaderView &header, int column)
{
    const QPoint origin(header.sectionViewportPosition(column), 0);
    const QImage picture =
        header.viewport()
            ->grab({origin, QSize(header.sectionSize(column), header.height()) - QSize(2, 2)})
            .toImage();
    int ink = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            ink += picture.pixel(x, y) != picture.pixel(1, 1);
    }
    return ink;
}

/// The first title that shows more when its column gets wider.
QString cutTitle(QHeaderView &header)
{
    const QSignalBlocker unseen(header); // it is not the user who tries other widths
    for (int column = 0; column < header.count(); ++column) {
        const int size = header.sectionSize(column);
        const int ink = titleInk(header, column);
        header.resizeSection(column, size + 40);
        const bool isCut = titleInk(header, column) != ink;
        header.resizeSection(column, size);
        if (isCut)
            return header.model()->headerData(column, Qt::Horizontal).toString();
    }
    return {};
}

} // namespace

class LookTest final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QCoreApplication::setOrganizationName(product::kOrganisation);
        QCoreApplication::setApplicationName(product::kApplicationName);
        QApplication::setQuitOnLastWindowClosed(false);
        probeOpenGl(TAppState::instance());
    }
    void cleanup()
    {
        qDeleteAll(qApp->findChildren<QTranslator *>());
        QApplication::setPalette(QPalette());
    }

    void anyDesktopCanBeRead()
    {
        QList<Desktop> all = desktops();
        all += {QStringLiteral("grey on grey"),
                desktopPalette(0x808080, 0x7a7a7a, 0x868686, 0x8a8a8a, 0x828282, 0x808080)};
        all += {QStringLiteral("neutral"), Theme::neutral()};
        for (const Desktop &desktop : all) {
            const QPalette palette = Theme::readable(desktop.palette);
            using Role = QPalette::ColorRole;
            const std::tuple<Role, Role, double> pairs[] = {
                {QPalette::WindowText, QPalette::Window, 4.5},
                {QPalette::Text, QPalette::Base, 4.5},
                {QPalette::ButtonText, QPalette::Button, 4.5},
                {QPalette::ButtonText, QPalette::Midlight, 4.5},
                {QPalette::PlaceholderText, QPalette::Base, 4.5},
                {QPalette::HighlightedText, QPalette::Highlight, 4.5},
                {QPalette::ToolTipText, QPalette::ToolTipBase, 4.5},
                {QPalette::Dark, QPalette::Window, 3.0},
                {QPalette::Dark, QPalette::Base, 3.0},
                {QPalette::Link, QPalette::Window, 3.0},
                {QPalette::Link, QPalette::Button, 3.0},
                {QPalette::Highlight, QPalette::Base, desktop.name == u"grey on grey" ? 1.0 : 3.0},
            };
            for (const auto &[front, back, needed] : pairs) {
                const double ratio = Theme::contrast(palette.color(front), palette.color(back));
                QVERIFY2(ratio >= needed,
                         qPrintable(QStringLiteral("%1: role %2 on %3: %4")
                                        .arg(desktop.name)
                                        .arg(front)
                                        .arg(back)
                                        .arg(ratio)));
            }
        }
    }

    void textsStandOutInPictures_data()
    {
        QTest::addColumn<QPalette>("desktop");
        for (const Desktop &desktop : desktops())
            QTest::newRow(qPrintable(desktop.name)) << desktop.palette;
    }
    void textsStandOutInPictures()
    {
        QFETCH(QPalette, desktop);
        QApplication::setPalette(desktop);
        const Look look(*qApp);
        double faintest = 21;
        int count = 0;
        WindowBook([&](const QString &name, QWidget &window) {
            const QImage picture = window.grab().toImage();
            const qreal ratio = picture.devicePixelRatio();
            for (const QWidget *widget : window.findChildren<QWidget *>()) {
                if (!isRead(*widget))
                    continue;
                const QRect place(widget->mapTo(&window, QPoint()), widget->size());
                const double contrast = contrastIn(
                    picture.copy(QRect(place.topLeft() * ratio, place.size() * ratio) & picture.rect()));
                faintest = showsIcon(*widget) ? faintest : std::min(faintest, contrast);
                ++count;
                QVERIFY2(contrast >= (showsIcon(*widget) ? kStateContrast : kTextContrast),
                         qPrintable(QStringLiteral("%1: %2 \"%3\" has %4:1")
                                        .arg(name, widget->objectName(), textOf(*widget))
                                        .arg(contrast)));
            }
        }).visitAll();
        std::printf("contrast, %s: the faintest of %d texts has %.1f:1\n", QTest::currentDataTag(), count,
                    faintest);
        QVERIFY(count > 50);
    }

    /// What has the focus, and what is on, shows it in what changes.
    void statesStandOut_data() { textsStandOutInPictures_data(); }
    void statesStandOut()
    {
        QFETCH(QPalette, desktop);
        QApplication::setPalette(desktop);
        const Look look(*qApp);
        QWidget window;
        auto *column = new QVBoxLayout(&window);
        QList<QWidget *> controls{new QCheckBox(QStringLiteral("check")),
                                  new QRadioButton(QStringLiteral("radio")),
                                  new QToolButton,
                                  new QPushButton(QStringLiteral("push")),
                                  new QLineEdit,
                                  new QComboBox};
        for (QWidget *control : controls) {
            if (auto *button = qobject_cast<QAbstractButton *>(control)) {
                button->setCheckable(true);
                button->setAutoExclusive(false);
            }
            control->setFocusPolicy(Qt::StrongFocus);
            column->addWidget(control);
        }
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        const auto shown = [&window](QWidget *control) {
            // With the window behind it, which a ring is seen against.
            return window.grab(control->geometry().adjusted(-2, -2, 2, 2)).toImage();
        };
        for (QWidget *control : controls) {
            window.setFocus();
            const QImage plain = shown(control);
            control->setFocus();
            QTRY_VERIFY(control->hasFocus());
            const double focus = contrastIn(shown(control), plain);
            QVERIFY2(focus >= kStateContrast,
                     qPrintable(QStringLiteral("focus of a %1: %2")
                                    .arg(QLatin1String(control->metaObject()->className()))
                                    .arg(focus)));
            if (auto *button = qobject_cast<QAbstractButton *>(control)) {
                const QImage off = shown(control);
                button->setChecked(true);
                const double on = changeBetween(off, shown(control));
                QVERIFY2(on >= kStateContrast,
                         qPrintable(QStringLiteral("on of a %1: %2")
                                        .arg(QLatin1String(control->metaObject()->className()))
                                        .arg(on)));
            }
        }
    }

    void textsAreWhole_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<qreal>("size");
        for (const char *language : {"en", "de", "es", "fr", "it", "ja", "ko", "zh_CN"})
            QTest::addRow("%s", language) << QString::fromLatin1(language) << 1.0;
        QTest::addRow("de, larger") << QStringLiteral("de") << 1.5;
    }
    void textsAreWhole()
    {
        QFETCH(QString, language);
        QFETCH(qreal, size);
        installLanguage(language);
        const Look look(*qApp);
        QFont font = QApplication::font();
        font.setPointSizeF(font.pointSizeF() * size);
        QApplication::setFont(font);
        QStringList faults;
        WindowBook([&](const QString &name, QWidget &window) {
            for (const QWidget *widget : window.findChildren<QWidget *>()) {
                for (const QString &fault :
                     {cutOff(*widget), isRead(*widget) ? overlapping(*widget) : QString()}) {
                    if (!fault.isEmpty())
                        faults += name + QStringLiteral(": ") + fault;
                }
            }
            if (auto *header = window.findChild<QHeaderView *>()) {
                if (const QString title = cutTitle(*header); !title.isEmpty())
                    faults += name + QStringLiteral(": title ") + title;
            }
        }).visitAll();
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
    }
};

QTEST_MAIN(LookTest)
#include "tst_look.moc"
