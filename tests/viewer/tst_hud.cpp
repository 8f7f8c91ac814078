#include "picturetest.h"
#include "table.h"

#include <ui/tappstate.h>
#include <viewer/widgets/render/hud.h>

#include <algorithm>
#include <cmath>

namespace {

/// The rows that end the lines of a white text on black.
QList<int> lineEnds(const QImage &picture)
{
    QList<int> ends;
    bool within = false;
    for (int y = 0; y < picture.height(); ++y) {
        bool lit = false;
        for (int x = 0; x < picture.width(); ++x)
            lit = lit || qGray(picture.pixel(x, y)) > 100;
        if (within && !lit)
            ends.append(y);
        within = lit;
    }
    return ends;
}

} // namespace

class HudTest final : public PictureTestBase {
    Q_OBJECT

private Q_SLOTS:
    void hudIsLegibleOnAnyPicture_data()
    {
        addTable<QColor>({"text"},
                         {{"white", Qt::white}, {"black", Qt::black}, {"grey", QColor(118, 118, 118)}});
    }
    void hudIsLegibleOnAnyPicture()
    {
        QFETCH(QColor, text);
        m_picture->setGeometry(kLargePlace);
        const auto shown = show(flagged(), QSize(10, 10), [](ImageFrame &frame) {
            frame.filePath = std::string(500, 'a') + "/shot.0001.exr";
        });
        m_picture->setHudOn(true);
        m_picture->setHudColor(text);
        m_picture->setZoomFactor(60.0F);
        m_picture->setChannelViewMode(-1); // transparent: the background shows, or the checker
        for (const QColor &below : {QColor(Qt::white), QColor(Qt::black), QColor()}) {
            m_picture->setCheckerOn(!below.isValid());
            m_picture->setBackgroundColor(below);
            const QImage picture = m_picture->grabFramebuffer();
            double lightest = 0.0;
            double darkest = 1.0;
            const qreal ratio = m_picture->devicePixelRatioF();
            // Within the first line, which the path fills from edge to edge.
            for (int x = int(20 * ratio); x < int(380 * ratio); ++x) {
                for (int y = int(14 * ratio); y < int(28 * ratio); ++y) {
                    const double grey = picture.pixelColor(x, y).greenF();
                    const double light =
                        grey <= 0.04045 ? grey / 12.92 : std::pow((grey + 0.055) / 1.055, 2.4);
                    lightest = std::max(lightest, light);
                    darkest = std::min(darkest, light);
                }
            }
            QVERIFY((lightest + 0.05) / (darkest + 0.05) >= 4.5);
        }
        const QString path = hudLines(shown->frame, 370).value(0);
        QVERIFY(path.startsWith(u"File: aaa"_qs) && path.endsWith(u"shot.0001.exr"_qs));
    }

    void hudStandsWhereItsPathPutsIt()
    {
        m_picture->setGeometry(kLargePlace);
        const auto shown = show(flagged(), QSize(900, 700));
        const qreal ratio = m_picture->devicePixelRatioF();
        m_picture->setChannelViewMode(-1);
        m_picture->setCheckerOn(false);
        m_picture->setHudColor(Qt::white);
        QVERIFY(lineEnds(m_picture->grabFramebuffer()).isEmpty());
        m_picture->setHudOn(true);
        const QImage still = m_picture->grabFramebuffer();
        const auto ends = lineEnds(still);
        QCOMPARE(ends.size(), 7);
        m_picture->setPan(QPoint(7, 5));
        const QImage panned = m_picture->grabFramebuffer();
        if (!TAppState::instance().gl32Supported) {
            // Lines without a descender end at their baselines.
            for (const auto &[line, row] : {std::pair(0, 25), {1, 47}, {6, 160}})
                QVERIFY2(qAbs(ends[line] - row * ratio) <= ratio, qPrintable(QString::number(ends[line])));
            QCOMPARE(panned, still);
            QCOMPARE(imageWidget::liveTextures(), 1);
            return;
        }
        QVERIFY(ends[0] > 25 * ratio && ends[0] < 33 * ratio);
        const QSize common = still.size() - QSize(10, 10);
        QCOMPARE(panned.copy(QRect(QPoint(0, 0), common)), still.copy(QRect(QPoint(7, 5), common)));
        QCOMPARE(imageWidget::liveTextures(), 2);

        // What is put into the texture shows for as long as the HUD does not make another.
        const std::uint32_t green = 0xff00ff00U;
        QOpenGLFunctions *gl = m_picture->context()->functions();
        GLuint hud = 1;
        while (hud == shown->frame.textureNames[0] || !gl->glIsTexture(hud))
            ++hud;
        gl->glBindTexture(GL_TEXTURE_2D, hud);
        gl->glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, 1, 1, 0, GL_RGBA, GL_UNSIGNED_BYTE, &green);
        gl->glBindTexture(GL_TEXTURE_2D, 0);
        QCOMPARE(m_picture->grabFramebuffer().pixel((QPointF(16, 16) * ratio).toPoint()), 0xff00ff00U);
        m_picture->setHudColor(Qt::red);
        QVERIFY(m_picture->grabFramebuffer().pixel((QPointF(16, 16) * ratio).toPoint()) != 0xff00ff00U);
        m_picture->setHudColor(Qt::white);
        QCOMPARE(m_picture->grabFramebuffer(), panned);
        QCOMPARE(imageWidget::liveTextures(), 2);
    }
};

QTEST_MAIN(HudTest)
#include "tst_hud.moc"
