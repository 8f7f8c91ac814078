#include "fakedisplay.h"
#include "jobframes.h"

#include <image_library/iimagecore.h>
#include <viewer/session/viewersession.h>

#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>

#include <memory>

using namespace Qt::StringLiterals;
using TImageLibrary::IImageCore;

namespace {

constexpr QSize kFrame(64, 48);
constexpr int kFrames = 8;

} // namespace

class LookAheadTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_totals = {};
        m_session = std::make_unique<ViewerSession>(m_totals, m_display);
        m_session->setReadAhead(true);
        for (int i = 1; i <= kFrames; ++i)
            writeFrame(file(i), kFrame);
    }

    void cleanup()
    {
        m_session.reset();
        QCOMPARE(m_display.textures, 0);
        QCOMPARE(m_totals.videoMemoryUsed + m_totals.mainMemoryUsed, 0U);
    }

    void aSequenceIsThereWithoutAClick()
    {
        m_totals.videoMemoryBudget = 1'000'000'000;
        open(3);
        m_session->setRange({2, 4, 1});
        QTRY_COMPARE(cached(), 3);
        QTRY_VERIFY(!m_session->lookAhead().isReading());
        QVERIFY(QFile::remove(file(6)));
        m_session->setRange({1, kFrames, 1});
        QTRY_COMPARE(cached(), kFrames - 1);
        QTRY_VERIFY(!m_session->lookAhead().isReading());
        QCOMPARE(m_display.uploads, kFrames - 1); // each once
        writeFrame(file(6), kFrame);
        m_session->reload();
        QTRY_COMPARE(cached(), kFrames);
        for (int frame = 1; frame <= kFrames; ++frame) {
            m_session->setFrame(frame);
            QVERIFY(m_session->lastLoad().shown() && !m_session->lastLoad().decoded);
        }
        // As it is shown: what was on its way for another look does not count.
        m_session->setDownsampling(1);
        QTRY_COMPARE(cached(), kFrames);
        m_session->setDownsampling(2);
        QTRY_COMPARE(cached(), kFrames);
        for (int frame = 1; frame <= kFrames; ++frame)
            QCOMPARE(find(frame)->planeSizes.front(), (PlaneSize{kFrame.width() / 4, kFrame.height() / 4}));
    }

    /// A session in a corner of the budgets, idle and playing, where each step needs another frame's room.
    void theBudgetsHold()
    {
        constexpr std::uint64_t kBytes = 64 * 48 * 4 * sizeof(float);
        m_totals.videoMemoryBudget = 2 * kBytes + kBytes / 2;
        m_totals.mainMemoryBudget = 2 * kBytes + kBytes / 2;
        const auto holds = [this] {
            return m_totals.videoMemoryUsed <= m_totals.videoMemoryBudget
                && m_totals.mainMemoryUsed <= m_totals.mainMemoryBudget;
        };
        bool isHeld = true;
        int inTime = 0;
        QSignalSpy arrived(m_session.get(), &ViewerSession::readAhead);
        connect(m_session.get(), &ViewerSession::readAhead, this, [&] { isHeld = isHeld && holds(); });
        connect(m_session.get(), &ViewerSession::loaded, this, [&] {
            isHeld = isHeld && holds();
            inTime += m_session->lastLoad().decoded ? 0 : 1;
        });
        open(3);
        QTRY_COMPARE(cached(), 4);
        QTRY_VERIFY(!m_session->lookAhead().isReading());
        QVERIFY(find(3) && find(4) && find(5) && find(6));
        arrived.clear();
        m_session->playback().setFramesPerSecond(25);
        m_session->togglePlaying();
        QTRY_VERIFY(inTime > 2 * kFrames);
        m_session->togglePlaying();
        QVERIFY(arrived.size() > kFrames);
        QVERIFY(isHeld);
    }

    /// Faster than frames can be read: none is left out, and none is loaded while the event loop waits.
    void playingWaitsForWhatIsComing()
    {
        for (int i = 1; i <= kFrames; ++i)
            writeFrame(file(i), {512, 512});
        open(1);
        QList<int> shown;
        bool isAnyLoaded = false;
        connect(m_session.get(), &ViewerSession::loaded, this, [&] {
            shown += m_session->frame();
            isAnyLoaded = isAnyLoaded || m_session->lastLoad().decoded;
        });
        m_session->playback().setFramesPerSecond(1000);
        m_session->togglePlaying();
        QTRY_VERIFY(shown.size() >= kFrames);
        QCOMPARE(shown.first(kFrames), (QList<int>{2, 3, 4, 5, 6, 7, 8, 1}));
        QVERIFY(!isAnyLoaded);
    }

    void whatWasWrittenSinceIsReadAgain()
    {
        open(1);
        QTRY_COMPARE(cached(), kFrames);
        writeFrame(file(4), kFrame * 2);
        m_session->setFrame(4);
        QVERIFY(m_session->lastLoad().decoded);
        QCOMPARE(find(4)->planeSizes.front(), (PlaneSize{2 * kFrame.width(), 2 * kFrame.height()}));
    }

    void brokenFramesAreToldOfWhenTheyAreReached()
    {
        QVERIFY(QFile::resize(file(3), 400));
        m_session->setShowIncomplete(false);
        QTest::failOnWarning(QRegularExpression(u".*"_s));
        open(1);
        QSignalSpy loads(m_session.get(), &ViewerSession::loaded);
        QVERIFY(QFile::remove(file(5)));
        QTRY_VERIFY(cached() >= kFrames - 2 && !m_session->lookAhead().isReading());
        QVERIFY(!find(3));
        QCOMPARE(loads.size(), 0);
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"Cannot load .*0003.*"_s));
        m_session->setFrame(3);
        QCOMPARE(m_session->lastLoad().outcome, LoadOutcome::Corrupted);
    }

    void closingCancels()
    {
        for (int i = 1; i <= kFrames; ++i)
            writeFrame(file(i), {1024, 1024});
        open(1);
        QTRY_VERIFY(m_session->lookAhead().isReading());
        m_session.reset();
        // Jobs are numbered: none of those before this one is kept.
        const std::uint64_t last = IImageCore::BeginAhead({file(1).toStdString(), {}, 0});
        TImageLibrary::TAheadResult result;
        for (std::uint64_t id = 1; id < last; ++id)
            QVERIFY(!IImageCore::TakeAhead(id, result));
        IImageCore::CancelAhead(last);
    }

private:
    QString file(int frame) const
    {
        return m_folder->filePath(u"shot.%1.exr"_s.arg(frame, 4, 10, QLatin1Char('0')));
    }
    void open(int frame) const
    {
        m_session->open({.path = file(frame).toStdString(), .force = true, .maskIsSequence = true});
    }
    const ImageFrame *find(int frame) const { return m_session->cache().find(file(frame).toStdString()); }
    int cached() const
    {
        int count = 0;
        for (int frame = 1; frame <= kFrames; ++frame)
            count += find(frame) ? 1 : 0;
        return count;
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    CacheTotals m_totals;
    FakeDisplay m_display;
    std::unique_ptr<ViewerSession> m_session;
};

QTEST_GUILESS_MAIN(LookAheadTest)

#include "tst_lookahead.moc"
