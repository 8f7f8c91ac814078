#include <notify/preferences.h>
#include <notify/settings/settings.h>

#include <modals.h>
#include <table.h>

#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>
#include <QtGui/QScreen>
#include <QtGui/QWheelEvent>
#include <QtTest/QSignalSpy>
#include <QtTest/QTest>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QListWidget>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollArea>

#include <functional>
#include <limits>
#include <map>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

/// Hands the file chooser that opens next to `use`, from within its own event loop.
void whenChooserOpens(const std::function<void(QFileDialog &)> &use)
{
    whenModalOpens([use](QWidget *modal) {
        auto *chooser = qobject_cast<QFileDialog *>(modal);
        QVERIFY(chooser && QTest::qWaitForWindowActive(chooser));
        use(*chooser);
    });
}

void typePath(QFileDialog &chooser, const QString &path)
{
    auto *name = chooser.findChild<QLineEdit *>(u"fileNameEdit"_s);
    QVERIFY(name);
    name->selectAll();
    QTest::keyClicks(name, path);
    QTest::keyClick(name, Qt::Key_Return);
}

} // namespace

class TestPreferences final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_folder.isValid());
        for (const QString &name : {u"ping.wav"_s, u"viewer"_s}) {
            QFile file(m_folder.filePath(name));
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write(QByteArray(1000, 'x')) == 1000);
        }
    }

    void init()
    {
        m_dialog = std::make_unique<preferences>();
        m_dialog->setValues(Settings());
        m_dialog->show();
        QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
    }

    void cleanup() { m_dialog.reset(); }

    void takesBackWhatItShows()
    {
        QCOMPARE(m_dialog->values({}), Settings());
        QCOMPARE(child<QLineEdit>(u"exrImportGamma"_s)->text(), u"2.2"_s);
        QCOMPARE(child<QLineEdit>(u"authenticationPassword"_s)->echoMode(), QLineEdit::Password);

        Settings odd;
        odd.dispatcherPort = -70000;
        odd.authenticationPassword = u" pässwörd €🔑 "_s;
        odd.imageViewerMaxGPUCache = 0;
        odd.imageViewerMaxRAMCache = std::numeric_limits<quint64>::max();
        odd.imageViewerExrImportGamma = 1.0F / 2.2F;
        odd.imageViewerDefaultImportGamma = 1e-20F;
        odd.imageViewerMode = 1;
        m_dialog->setValues(odd);
        QCOMPARE(m_dialog->values({}), odd);

        odd.imageViewerMode = 7;
        m_dialog->setValues(odd);
        QCOMPARE(m_dialog->values({}).imageViewerMode, 0);
    }

    void checkBoxesChangeWhatTheySay()
    {
        std::map<QString, bool Settings::*> members{
            {u"Job's start"_s, &Settings::filterJobStart},
            {u"Chunk's start"_s, &Settings::filterChunkStart},
            {u"Job's complete with errors"_s, &Settings::filterJobCompletedWithErrors},
            {u"Job's complete with warnings"_s, &Settings::filterJobCompletedWithWarnings},
            {u"Job's complete with success"_s, &Settings::filterJobCompletedWithSuccess},
            {u"Chunk's complete with errors"_s, &Settings::filterChunkCompletedWithErrors},
            {u"Chunk's complete with warnings"_s, &Settings::filterChunkCompletedWithWarnings},
            {u"Chunk's complete with success"_s, &Settings::filterChunkCompletedWithSuccess},
            {u"Service activities"_s, &Settings::filterServiceActivities},
            {u"Play sound on errors"_s, &Settings::playErrorSound},
            {u"Play sound on warning"_s, &Settings::playWarningSound},
            {u"Play sound on success"_s, &Settings::playSuccessSound},
            {u"Play sound on items start"_s, &Settings::playStartSound},
            {u"Play sound on service events"_s, &Settings::playServiceSound},
            {u"Launch image viewer automatically"_s, &Settings::launchImageViewer},
            {u"Show incomplete frames"_s, &Settings::viewerShowIncompleteFrames},
            {u"Skip directory server authentication"_s, &Settings::skipDirectoryAuthentication},
            {u"Show bubble (when supported)"_s, &Settings::showBubble},
            {u"Automatic aknowledge notifications when raising the application"_s, &Settings::autoAckOnRaise},
        };
        for (QAbstractButton *box : m_dialog->findChildren<QAbstractButton *>()) {
            const auto member = members.find(box->text());
            if (member == members.end())
                continue;
            click(box);
            Settings expected;
            expected.*member->second = !(expected.*member->second);
            QVERIFY2(m_dialog->values({}) == expected, qPrintable(box->text()));
            m_dialog->setValues({});
            QVERIFY2(m_dialog->values(expected) == Settings(), qPrintable(box->text()));
            members.erase(member);
        }
        QVERIFY(members.empty());
    }

    void fieldsChangeWhatTheySay()
    {
        const auto check = [this](const char *name, const QString &typed, auto member, const auto &value) {
            QWidget *widget = field(QString::fromLatin1(name));
            QVERIFY2(widget, name);
            type(widget, typed);
            Settings expected;
            expected.*member = value;
            QVERIFY2(m_dialog->values({}) == expected, name);
            m_dialog->setValues({});
        };
        const std::pair<const char *, QString Settings::*> texts[] = {
            {"Sound file for errors", &Settings::errorSound},
            {"Sound file for warnings", &Settings::warningSound},
            {"Sound file for successes", &Settings::successSound},
            {"Sound file for starts of items", &Settings::startSound},
            {"Sound file for service events", &Settings::serviceSound},
            {"Image viewer application", &Settings::imageViewer},
            {"Dispatcher address", &Settings::dispatcherAddress},
            {"Login", &Settings::authenticationUser},
            {"Password", &Settings::authenticationPassword},
        };
        for (const auto &[name, member] : texts)
            check(name, u"/a b/c.wav"_s, member, u"/a b/c.wav"_s);
        check("Alertor port", u"80"_s, &Settings::dispatcherPort, 80);
        check("GPU viewer cache, bytes", u"3"_s, &Settings::imageViewerMaxGPUCache, 3U);
        check("RAM viewer cache, bytes", u"4"_s, &Settings::imageViewerMaxRAMCache, 4U);
        check("EXR import gamma", u"1,8"_s, &Settings::imageViewerExrImportGamma, 1.8F);
        check("Default import gamma", u".5"_s, &Settings::imageViewerDefaultImportGamma, 0.5F);
    }

    void textThatIsNoNumberIsZero()
    {
        Settings expected;
        expected.dispatcherPort = 0;
        expected.imageViewerMaxGPUCache = expected.imageViewerMaxRAMCache = 0;
        expected.imageViewerExrImportGamma = expected.imageViewerDefaultImportGamma = 0;
        for (const char *text :
             {"", "x", "1.5.2", "0x10", "nan", "1e400", "99999999999999999999999999999999999999999"}) {
            for (const QString &name : {u"dispatcherPort"_s, u"gpuCacheLimit"_s, u"ramCacheLimit"_s,
                                        u"exrImportGamma"_s, u"defaultImportGamma"_s})
                type(child<QLineEdit>(name), QString::fromLatin1(text));
            QVERIFY2(m_dialog->values({}) == expected, text);
        }
    }

    void numbersAreReadInAnyScript()
    {
        const std::pair<QString, QString> typed[] = {{u"exrImportGamma"_s, u"２。４"_s},
                                                     {u"defaultImportGamma"_s, u"٠٫٥"_s},
                                                     {u"dispatcherPort"_s, u"８０"_s},
                                                     {u"ramCacheLimit"_s, u"１５００００００００"_s}};
        for (const auto &[name, text] : typed)
            child<QLineEdit>(name)->setText(text);
        Settings expected;
        expected.imageViewerExrImportGamma = 2.4F;
        expected.imageViewerDefaultImportGamma = 0.5F;
        expected.dispatcherPort = 80;
        expected.imageViewerMaxRAMCache = 1'500'000'000;
        QCOMPARE(m_dialog->values({}), expected);
        const QString meaning = child<QLabel>(u"ramCacheMeaning"_s)->text();
        QVERIFY2(meaning.startsWith(u"1.5 GB of "_s), qPrintable(meaning));
        QCOMPARE(child<QLabel>(u"gpuCacheMeaning"_s)->text(), u"1 GB"_s);
    }

    void okGoesToTheFirstFieldThatCannotBeTaken()
    {
        const QSignalSpy accepted(m_dialog.get(), &QDialog::accepted);
        auto *gamma = child<QLineEdit>(u"exrImportGamma"_s);
        for (const QString &wrong : {u"2.2.2"_s, u"0"_s}) {
            type(child<QLineEdit>(u"dispatcherPort"_s), u"65536"_s);
            type(gamma, wrong);
            click(child<QWidget>(u"errorSoundPath"_s));
            QTest::keyClick(m_dialog.get(), Qt::Key_Return);
            QVERIFY(m_dialog->isVisible() && gamma->isVisible());
            QVERIFY(gamma->hasFocus() && !gamma->accessibleDescription().isEmpty());
        }
        QTest::keyClicks(gamma, u"2,4"_s); // what is wrong is selected
        QTest::keyClick(m_dialog.get(), Qt::Key_Return);
        QVERIFY(child<QLineEdit>(u"dispatcherPort"_s)->hasFocus());
        QTest::keyClicks(m_dialog->focusWidget(), u"80"_s);
        QCOMPARE(accepted.size(), 0);
        QTest::keyClick(m_dialog.get(), Qt::Key_Return);
        QCOMPARE(accepted.size(), 1);
        QCOMPARE(m_dialog->values({}).imageViewerExrImportGamma, 2.4F);
    }

    void tellsWhySoundsAreNotHeard()
    {
        const QString noSound = m_folder.filePath(u"ping.wav"_s);
        auto *path = child<QLineEdit>(u"warningSoundPath"_s);
        auto *hear = child<QAbstractButton>(u"hearWarningSound"_s);
        const auto *trouble = child<QLabel>(u"soundTrouble"_s);
        click(hear);
        QVERIFY(!hear->isEnabled());
        for (const auto &[file, why] :
             {std::pair(noSound, u"no WAV file"_s), {u"/gone.wav"_s, u"no such"_s}}) {
            type(path, file);
            click(hear);
            QTRY_VERIFY2(trouble->isVisible() && trouble->text().contains(file)
                             && trouble->text().contains(why),
                         qPrintable(trouble->text()));
        }
    }

    void comesUpAsItWasLeft()
    {
        const auto *pages = child<QListWidget>(u"pageList"_s);
        QCOMPARE(pages->currentItem()->text(), u"Network"_s); // nothing is stored
        QVERIFY(saveSettings(Settings()));
        click(child<QWidget>(u"errorSoundPath"_s));
        const QSize size = m_dialog->size() - QSize(0, 20);
        m_dialog->resize(size);
        QTRY_COMPARE(m_dialog->size(), size);
        QTest::keyClick(m_dialog.get(), Qt::Key_Escape);
        init();
        QCOMPARE(child<QListWidget>(u"pageList"_s)->currentItem()->text(), u"Sounds"_s);
        QCOMPARE(m_dialog->size(), size);
        QSettings().clear();
    }

    void choosesTheViewerMode()
    {
        auto *mode = child<QComboBox>(u"imageViewerMode"_s);
        const auto turn = [mode](int by) {
            QWheelEvent event(mode->rect().center(), mode->mapToGlobal(mode->rect().center()), {}, {0, by},
                              {}, {}, Qt::NoScrollPhase, false);
            QApplication::sendEvent(mode, &event);
        };
        // The wheel scrolls past it while it has not the keyboard.
        turn(-120);
        QCOMPARE(m_dialog->values({}), Settings());
        mode->setFocus();
        turn(-120);
        Settings expected;
        expected.imageViewerMode = 1;
        QCOMPARE(m_dialog->values({}), expected);
        QTest::keyClick(mode, Qt::Key_Up);
        QCOMPARE(m_dialog->values({}), Settings());
    }

    void keepsToTheScreen()
    {
        const QRect available = m_dialog->screen()->availableGeometry();
        QVERIFY(available.height() < 1188);
        QTRY_VERIFY2(available.contains(m_dialog->frameGeometry()),
                     qPrintable(QDebug::toString(m_dialog->frameGeometry())));
        QVERIFY(m_dialog->width() <= 688);
        for (QAbstractButton *button : child<QDialogButtonBox>(u"buttonBox"_s)->buttons())
            QVERIFY(m_dialog->rect().contains(button->geometry().translated(button->parentWidget()->pos())));
    }

    void pickersFillTheirField()
    {
        const QStringList sounds{u"Audio Files (*.wav)"_s};
        const QStringList programs{u"Executables (*.exe)"_s, u"All files (*)"_s};
        const std::tuple<QString, QString, QString, QStringList> pickers[] = {
            {u"pickErrorSound"_s, u"errorSoundPath"_s, u"ping.wav"_s, sounds},
            {u"pickWarningSound"_s, u"warningSoundPath"_s, u"ping.wav"_s, sounds},
            {u"pickSuccessSound"_s, u"successSoundPath"_s, u"ping.wav"_s, sounds},
            {u"pickStartSound"_s, u"startSoundPath"_s, u"ping.wav"_s, sounds},
            {u"pickServiceSound"_s, u"serviceSoundPath"_s, u"ping.wav"_s, sounds},
            {u"pickImageViewer"_s, u"imageViewer"_s, u"viewer"_s, programs}};
        for (const auto &[button, fieldName, file, filters] : pickers) {
            auto *target = child<QLineEdit>(fieldName);
            whenChooserOpens([filters = filters](QFileDialog &chooser) {
                QTest::keyClick(&chooser, Qt::Key_Escape);
                QCOMPARE(chooser.nameFilters(), filters);
            });
            click(child<QWidget>(button));
            QCOMPARE(target->text(), QString());
            const QString path = m_folder.filePath(file);
            whenChooserOpens([&path](QFileDialog &chooser) { typePath(chooser, path); });
            click(child<QWidget>(button));
            QCOMPARE(target->text(), path);
            target->clear();
            QCOMPARE(m_dialog->values({}), Settings());
        }
    }

private:
    template <typename T>
    T *child(const QString &name) const
    {
        return m_dialog->findChild<T *>(name);
    }
    QWidget *field(const QString &accessibleName) const
    {
        for (QWidget *widget : m_dialog->findChildren<QWidget *>()) {
            if (widget->accessibleName() == accessibleName)
                return widget;
        }
        return nullptr;
    }

    /// Opens the widget's page, scrolls to it and clicks on its left end, where a check box has its mark.
    void click(QWidget *widget) const
    {
        const auto *pages = child<QListWidget>(u"pageList"_s);
        for (int row = 0; row < pages->count() && !widget->isVisible(); ++row)
            QTest::mouseClick(pages->viewport(), Qt::LeftButton, {},
                              pages->visualItemRect(pages->item(row)).center());
        for (QScrollArea *page : m_dialog->findChildren<QScrollArea *>()) {
            if (page->isAncestorOf(widget))
                page->ensureWidgetVisible(widget);
        }
        QTest::mouseClick(widget, Qt::LeftButton, {}, {8, widget->height() / 2});
    }

    void type(QWidget *widget, const QString &text) const
    {
        click(widget);
        QTest::keyClick(widget, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(widget, Qt::Key_Delete);
        QTest::keyClicks(widget, text);
    }

    QTemporaryDir m_folder;
    std::unique_ptr<preferences> m_dialog;
};

int main(int argc, char **argv)
{
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication application(argc, argv);
    QCoreApplication::setOrganizationName(u"test"_s);
    TestPreferences test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_preferences.moc"
