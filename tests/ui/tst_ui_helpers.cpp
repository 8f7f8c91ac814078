#include "table.h"

#include <ui/logfile.h>
#include <ui/plaintext.h>
#include <ui/svgicon.h>
#include <ui/windowplacement.h>

#include <QtCore/QTemporaryDir>
#include <QtGui/QPainter>
#include <QtGui/QTextDocumentFragment>
#include <QtSvg/QSvgRenderer>
#include <QtTest/QTest>
#include <QtWidgets/QLabel>

#include <limits>

namespace {

const QByteArray kTriangle = "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 20 20'>"
                             "<path d='M10 2 L18 17 L3 14 Z' fill='#ff0000'/></svg>";

QString written(const QTemporaryDir &folder, const QByteArray &text)
{
    QFile file(folder.filePath(QStringLiteral("icon%1").arg(text.size())));
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
        qFatal("cannot write the icon");
    return file.fileName();
}

} // namespace

class TestUiHelpers : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void svgIconIsCrispAtEverySize()
    {
        for (const auto &[size, scale] : {std::pair(16, 1.0), {22, 1.5}, {32, 2.0}, {128, 1.0}}) {
            const QPixmap pixmap = svgIcon(written(m_folder, kTriangle)).pixmap(QSize(size, size), scale);
            QCOMPARE(pixmap.deviceIndependentSize(), QSizeF(size, size));
            // Drawn for this very size, not scaled from another.
            QImage drawn(pixmap.size(), QImage::Format_ARGB32_Premultiplied);
            drawn.fill(Qt::transparent);
            QPainter painter(&drawn);
            QSvgRenderer(kTriangle).render(&painter);
            painter.end();
            QImage shown = pixmap.toImage().convertToFormat(drawn.format());
            shown.setDevicePixelRatio(1);
            QCOMPARE(shown, drawn);
            const QPixmap disabled =
                svgIcon(written(m_folder, kTriangle)).pixmap(QSize(size, size), scale, QIcon::Disabled);
            QVERIFY(disabled.toImage().pixelColor(pixmap.rect().center()).saturation() < 60);
        }
    }

    void unreadableSvgIsANullIcon()
    {
        for (const QString &path : {QStringLiteral(":/icons/none"), written(m_folder, "\x89PNG and more"),
                                    written(m_folder, "<html/>")}) {
            QTest::ignoreMessage(QtWarningMsg, qPrintable(QStringLiteral("Cannot read icon ") + path));
            QVERIFY(svgIcon(path).isNull());
        }
    }

    void rectangleIsFitted_data()
    {
        // A primary screen with a panel on top, and a lower one to its right.
        constexpr int kMax = std::numeric_limits<int>::max();
        addTable<QRect, QRect>(
            {"wanted", "expected"},
            {{"inside", {100, 100, 400, 300}, {100, 100, 400, 300}},
             {"across both", {1800, 400, 400, 300}, {1800, 400, 400, 300}},
             {"just enough of the header in sight", {3160, 400, 400, 300}, {3160, 400, 400, 300}},
             {"a little less of the header", {3161, 400, 400, 300}, {2800, 400, 400, 300}},
             {"header behind the panel", {100, 10, 400, 300}, {100, 24, 400, 300}},
             {"only its bottom below the second", {2500, 1500, 400, 300}, {2500, 924, 400, 300}},
             {"left of everything", {-3000, 300, 400, 300}, {0, 300, 400, 300}},
             {"larger than the second", {1950, 250, 1500, 2000}, {1920, 200, 1280, 1024}},
             {"without measure", QRect(QPoint(-kMax, -kMax), QPoint(kMax, kMax)), {0, 24, 1920, 1056}},
             {"at the end of the world",
              QRect(QPoint(kMax - 400, kMax - 300), QPoint(kMax, kMax)),
              {3199, 1223, 1, 1}}});
    }

    void rectangleIsFitted()
    {
        QFETCH(QRect, wanted);
        QFETCH(QRect, expected);
        QCOMPARE(fittedToAreas(wanted, {{0, 24, 1920, 1056}, {1920, 200, 1280, 1024}}), expected);
        QCOMPARE(fittedToAreas(wanted, {}), wanted);
    }

    void theLogKeepsTheLatestWithinItsLimit()
    {
        const QTemporaryDir state;
        qputenv("XDG_STATE_HOME", QFile::encodeName(state.path()));
        QVERIFY(LogFile::path().startsWith(state.path()));
        {
            LogFile log;
            for (int i = 0; i < 3000; ++i)
                log.write(QtInfoMsg, "tarrow.net", QStringLiteral("%1\nx").arg(i).leftJustified(500, u'.'));
        }
        QFile now(LogFile::path());
        QFile before(LogFile::path() + QStringLiteral(".1"));
        QVERIFY(now.open(QIODevice::ReadOnly) && before.open(QIODevice::ReadOnly));
        QVERIFY(now.size() + before.size() <= 1024 * 1024 && now.size() + before.size() > 512 * 1024);
        QCOMPARE(now.permissions() & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
        const QByteArrayList lines = (before.readAll() + now.readAll()).trimmed().split('\n');
        QVERIFY(lines.last().contains(" info tarrow.net: 2999 x."));
        for (qsizetype i = 0; i < lines.size(); ++i) // none is lost, torn or forged
            QVERIFY(lines[i].contains(QByteArray(": ") + QByteArray::number(3000 - lines.size() + i) + " x"));
        // Something stands where the file before goes.
        QVERIFY(before.remove() && QDir().mkpath(before.fileName() + QStringLiteral("/x")));
        LogFile log;
        for (int i = 0; i < 3000; ++i)
            log.write(QtInfoMsg, "tarrow.net", QString(500, u'.'));
        QVERIFY(QFileInfo(now.fileName()).size() <= 512 * 1024);
    }

    void textIsShortened_data()
    {
        const QString full(500, u'x');
        const QString smile = QStringLiteral("\U0001F600");
        addTable<QString, QString>(
            {"text", "shown"},
            {{"none", {}, {}},
             {"at the limit", full, full},
             {"beyond it", full + u'x', full + u'\u2026'},
             {"far beyond it", full.repeated(9), full + u'\u2026'},
             {"first line", u"one\r\ntwo"_qs, u"one\u2026"_qs},
             {"nothing but its end", u"one\n"_qs, u"one"_qs},
             {"behind empty lines", u"\n\u2028one"_qs, u"one"_qs},
             {"control characters", u"a\x1b[31m\0b"_qs, u"a [31m b"_qs},
             {"through a character", full.chopped(1) + smile, full.chopped(1) + u'\u2026'},
             {"wide characters", QString(9999, u'\u20ac'), QString(500, u'\u20ac') + u'\u2026'}});
    }

    void textIsShortened()
    {
        QFETCH(QString, text);
        QTEST(shortened(text), "shown");
        QTEST(shortened(text.toStdString()), "shown");
    }

    void toolTipsAreWrappedAndNoMarkup_data()
    {
        addTable<QString>({"text"},
                          {{"words", u"four <img src=x> "_qs.repeated(28)},
                           {"one word", QString(499, u'x')},
                           {"entities", u"&lt;b&gt; & <i>"_qs},
                           {"document", u"<?xml?><!DOCTYPE a>"_qs}});
    }

    void toolTipsAreWrappedAndNoMarkup()
    {
        QFETCH(QString, text);
        QLabel tip(plainToolTip(text)); // guesses as tooltips do
        tip.setFont(QFont(QStringLiteral("monospace"), 10));
        QVERIFY(tip.sizeHint().width() < tip.fontMetrics().horizontalAdvance(QString(110, u'x')));
        const QString shown = Qt::mightBeRichText(tip.text())
            ? QTextDocumentFragment::fromHtml(tip.text()).toPlainText()
            : tip.text();
        QCOMPARE(QString(shown).remove(u'\n'), text);
    }

private:
    QTemporaryDir m_folder;
};

QTEST_MAIN(TestUiHelpers)
#include "tst_ui_helpers.moc"
