#include <preferences.h>
#include <settings.h>

#include <QtCore/QPointer>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTimer>
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
#include <QtWidgets/QPushButton>
#include <QtWidgets/QScrollArea>

#include <functional>
#include <limits>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

using Change = std::function<void(Settings &)>;

/// Hands the file chooser that opens next to `use`, from within its own event loop.
void whenChooserOpens(const std::function<void(QFileDialog &)> &use)
{
    auto *poll = new QTimer(qApp);
    QObject::connect(poll, &QTimer::timeout, poll, [poll, use] {
        auto *chooser = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
        if (!chooser || !chooser->isActiveWindow())
            return;
        poll->deleteLater();
        poll->stop();
        use(*chooser);
    });
    poll->start(5);
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

Q_DECLARE_METATYPE(Change)

class TestPreferences final : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup() { m_dialog.reset(); }

    void showsTheDefaults();
    void takesBackWhatItShows();
    void checkBoxesChangeWhatTheySay_data();
    void checkBoxesChangeWhatTheySay();
    void fieldsChangeWhatTheySay_data();
    void fieldsChangeWhatTheySay();
    void textThatIsNoNumberIsZero_data();
    void textThatIsNoNumberIsZero();
    void everyLabelLeadsToItsField();
    void choosesTheViewerMode();
    void wheelScrollsPastTheViewerMode();
    void keepsToTheScreen();
    void tabReachesEverything();
    void buttonsAndKeysEndIt_data();
    void buttonsAndKeysEndIt();
    void pickersFillTheirField_data();
    void pickersFillTheirField();
    void pickerOutlivesTheDialog();

private:
    template <typename T>
    T *child(const QString &name) const
    {
        return m_dialog->findChild<T *>(name);
    }
    QWidget *field(const QString &accessibleName) const;
    /// Scrolls to the widget and clicks on its left end, where a check box has its mark.
    void click(QWidget *widget) const;
    void type(QWidget *widget, const QString &text) const;

    QTemporaryDir m_folder;
    std::unique_ptr<preferences> m_dialog;
};

void TestPreferences::initTestCase()
{
    QVERIFY(m_folder.isValid());
    for (const QString &name : {u"ping.wav"_s, u"viewer.exe"_s, u"viewer"_s}) {
        QFile file(m_folder.filePath(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }
}

void TestPreferences::init()
{
    m_dialog = std::make_unique<preferences>();
    m_dialog->setValues(Settings());
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
}

QWidget *TestPreferences::field(const QString &accessibleName) const
{
    for (QWidget *widget : m_dialog->findChildren<QWidget *>()) {
        if (widget->accessibleName() == accessibleName)
            return widget;
    }
    return nullptr;
}

void TestPreferences::click(QWidget *widget) const
{
    child<QScrollArea>(u"scrollArea"_s)->ensureWidgetVisible(widget);
    QTest::mouseClick(widget, Qt::LeftButton, {}, {8, widget->height() / 2});
}

void TestPreferences::type(QWidget *widget, const QString &text) const
{
    click(widget);
    QTest::keyClick(widget, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(widget, Qt::Key_Delete);
    QTest::keyClicks(widget, text);
}

void TestPreferences::showsTheDefaults()
{
    QCOMPARE(m_dialog->windowTitle(), u"Alertor Preferences"_s);
    QCOMPARE(m_dialog->objectName(), u"preferencesClass"_s);
    const std::pair<QString, QString> texts[] = {
        {u"dispatcherAddress"_s, u"127.0.0.1"_s}, {u"dispatcherPort"_s, u"9883"_s},
        {u"authenticationUser"_s, u"admin"_s},    {u"authenticationPassword"_s, u""_s},
        {u"gpuCacheLimit"_s, u"1000000000"_s},    {u"ramCacheLimit"_s, u"2000000000"_s},
        {u"exrImportGamma"_s, u"2.2"_s},          {u"defaultImportGamma"_s, u"1"_s},
    };
    for (const auto &[name, text] : texts)
        QCOMPARE(child<QLineEdit>(name)->text(), text);
    QCOMPARE(child<QLineEdit>(u"authenticationPassword"_s)->echoMode(), QLineEdit::Password);
    QCOMPARE(child<QComboBox>(u"imageViewerMode"_s)->currentText(), u"Integrated"_s);
}

void TestPreferences::takesBackWhatItShows()
{
    QCOMPARE(m_dialog->values({}), Settings());

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

void TestPreferences::checkBoxesChangeWhatTheySay_data()
{
    QTest::addColumn<Change>("flip");
    const std::pair<const char *, bool Settings::*> boxes[] = {
        {"Job's start", &Settings::filterJobStart},
        {"Chunk's start", &Settings::filterChunkStart},
        {"Job's complete with errors", &Settings::filterJobCompletedWithErrors},
        {"Job's complete with warnings", &Settings::filterJobCompletedWithWarnings},
        {"Job's complete with success", &Settings::filterJobCompletedWithSuccess},
        {"Chunk's complete with errors", &Settings::filterChunkCompletedWithErrors},
        {"Chunk's complete with warnings", &Settings::filterChunkCompletedWithWarnings},
        {"Chunk's complete with success", &Settings::filterChunkCompletedWithSuccess},
        {"Service activities", &Settings::filterServiceActivities},
        {"Play sound on errors", &Settings::playErrorSound},
        {"Play sound on warning", &Settings::playWarningSound},
        {"Play sound on success", &Settings::playSuccessSound},
        {"Play sound on items start", &Settings::playStartSound},
        {"Play sound on service events", &Settings::playServiceSound},
        {"Launch image viewer automatically", &Settings::launchImageViewer},
        {"Skip directory server authentication", &Settings::skipDirectoryAuthentication},
        {"Show bubble (when supported)", &Settings::showBubble},
        {"Automatic aknowledge notifications when raising the application", &Settings::autoAckOnRaise},
    };
    for (const auto &[text, member] : boxes)
        QTest::newRow(text) << Change(
            [flag = member](Settings &settings) { settings.*flag = !(settings.*flag); });
}

void TestPreferences::checkBoxesChangeWhatTheySay()
{
    QFETCH(const Change, flip);
    const QString text = QString::fromLatin1(QTest::currentDataTag());
    for (QAbstractButton *box : m_dialog->findChildren<QAbstractButton *>()) {
        if (box->text() == text)
            click(box);
    }
    Settings expected;
    flip(expected);
    QCOMPARE(m_dialog->values({}), expected);
    m_dialog->setValues({});
    QCOMPARE(m_dialog->values(expected), Settings());
}

void TestPreferences::fieldsChangeWhatTheySay_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<Change>("change");
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
        QTest::newRow(name) << u"/a b/c.wav"_s << Change([field = member](Settings &settings) {
            settings.*field = u"/a b/c.wav"_s;
        });
    QTest::newRow("Alertor port") << u"80"_s << Change([](Settings &s) { s.dispatcherPort = 80; });
    QTest::newRow("GPU viewer cache, bytes")
        << u"3"_s << Change([](Settings &s) { s.imageViewerMaxGPUCache = 3; });
    QTest::newRow("RAM viewer cache, bytes")
        << u"4"_s << Change([](Settings &s) { s.imageViewerMaxRAMCache = 4; });
    QTest::newRow("EXR import gamma")
        << u"1.8"_s << Change([](Settings &s) { s.imageViewerExrImportGamma = 1.8F; });
    QTest::newRow("Default import gamma")
        << u".5"_s << Change([](Settings &s) { s.imageViewerDefaultImportGamma = 0.5F; });
}

void TestPreferences::fieldsChangeWhatTheySay()
{
    QFETCH(const QString, typed);
    QFETCH(const Change, change);
    QWidget *widget = field(QString::fromLatin1(QTest::currentDataTag()));
    QVERIFY(widget);
    type(widget, typed);
    Settings expected;
    change(expected);
    QCOMPARE(m_dialog->values({}), expected);
}

void TestPreferences::textThatIsNoNumberIsZero_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text :
         {"", "x", "1,5", "0x10", "-", "nan", "1e400", "99999999999999999999999999999999999999999"})
        QTest::newRow(*text ? text : "empty") << QString::fromLatin1(text);
}

void TestPreferences::textThatIsNoNumberIsZero()
{
    QFETCH(const QString, text);
    for (const QString &name : {u"dispatcherPort"_s, u"gpuCacheLimit"_s, u"ramCacheLimit"_s,
                                u"exrImportGamma"_s, u"defaultImportGamma"_s})
        type(child<QLineEdit>(name), text);
    Settings expected;
    expected.dispatcherPort = 0;
    expected.imageViewerMaxGPUCache = 0;
    expected.imageViewerMaxRAMCache = 0;
    expected.imageViewerExrImportGamma = 0;
    expected.imageViewerDefaultImportGamma = 0;
    QCOMPARE(m_dialog->values({}), expected);
}

void TestPreferences::everyLabelLeadsToItsField()
{
    const auto labels = child<QWidget>(u"contents"_s)->findChildren<QLabel *>();
    QCOMPARE(labels.size(), 8);
    for (const QLabel *label : labels) {
        QVERIFY2(label->buddy(), qPrintable(label->text()));
        const int offset =
            label->buddy()->mapTo(m_dialog.get(), QPoint()).y() - label->mapTo(m_dialog.get(), QPoint()).y();
        QVERIFY2(qAbs(offset) < label->buddy()->height(), qPrintable(label->text()));
    }
}

void TestPreferences::choosesTheViewerMode()
{
    QWidget *mode = child<QComboBox>(u"imageViewerMode"_s);
    mode->setFocus();
    QTest::keyClick(mode, Qt::Key_Down);
    Settings expected;
    expected.imageViewerMode = 1;
    QCOMPARE(m_dialog->values({}), expected);
}

void TestPreferences::wheelScrollsPastTheViewerMode()
{
    auto *mode = child<QComboBox>(u"imageViewerMode"_s);
    const auto turn = [mode] {
        QWheelEvent event(mode->rect().center(), mode->mapToGlobal(mode->rect().center()), {}, {0, -120}, {},
                          {}, Qt::NoScrollPhase, false);
        QApplication::sendEvent(mode, &event);
    };
    turn();
    QCOMPARE(mode->currentIndex(), 0);
    mode->setFocus();
    turn();
    QCOMPARE(mode->currentIndex(), 1);
}

void TestPreferences::keepsToTheScreen()
{
    const QRect available = m_dialog->screen()->availableGeometry();
    QVERIFY(available.height() < 1188);
    QTRY_VERIFY2(available.contains(m_dialog->frameGeometry()),
                 qPrintable(QDebug::toString(m_dialog->frameGeometry())));
    QVERIFY(m_dialog->width() <= 688);
    for (QAbstractButton *button : child<QDialogButtonBox>(u"buttonBox"_s)->buttons())
        QVERIFY(m_dialog->rect().contains(button->geometry().translated(button->parentWidget()->pos())));
}

void TestPreferences::tabReachesEverything()
{
    const QWidget *viewport = child<QScrollArea>(u"scrollArea"_s)->viewport();
    QSet<QWidget *> expected;
    for (QWidget *widget : m_dialog->findChildren<QWidget *>()) {
        if (widget->focusPolicy() & Qt::TabFocus && !widget->focusProxy())
            expected += widget;
    }
    QCOMPARE(expected.size(), 18 + 14 + 1 + 6 + 2);

    QWidget *const first = child<QWidget>(u"filterJobStart"_s);
    first->setFocus();
    QWidget *previous = first;
    while (expected.remove(QApplication::focusWidget())) {
        previous = QApplication::focusWidget();
        if (viewport->isAncestorOf(previous))
            QVERIFY2(viewport->rect().contains(previous->geometry().translated(
                         previous->parentWidget()->mapTo(viewport, QPoint()))),
                     qPrintable(previous->objectName()));
        QTest::keyClick(previous, Qt::Key_Tab);
    }
    QCOMPARE(expected, QSet<QWidget *>());
    QCOMPARE(previous->parentWidget()->objectName(), u"buttonBox"_s);
    QCOMPARE(QApplication::focusWidget(), first);
}

void TestPreferences::buttonsAndKeysEndIt_data()
{
    QTest::addColumn<std::function<void(QDialog *)>>("act");
    QTest::addColumn<int>("result");
    const auto press = [](QDialogButtonBox::StandardButton button) {
        return std::function([button](QDialog *dialog) {
            QTest::mouseClick(dialog->findChild<QDialogButtonBox *>()->button(button), Qt::LeftButton);
        });
    };
    const auto strike = [](Qt::Key key) {
        return std::function([key](QDialog *dialog) {
            QTest::keyClick(dialog->findChild<QLineEdit *>(u"dispatcherPort"_s), key);
        });
    };
    QTest::newRow("OK") << press(QDialogButtonBox::Ok) << int(QDialog::Accepted);
    QTest::newRow("Cancel") << press(QDialogButtonBox::Cancel) << int(QDialog::Rejected);
    QTest::newRow("Return") << strike(Qt::Key_Return) << int(QDialog::Accepted);
    QTest::newRow("Escape") << strike(Qt::Key_Escape) << int(QDialog::Rejected);
}

void TestPreferences::buttonsAndKeysEndIt()
{
    QFETCH(const std::function<void(QDialog *)>, act);
    QFETCH(const int, result);
    const QSignalSpy finished(m_dialog.get(), &QDialog::finished);
    act(m_dialog.get());
    QCOMPARE(finished.size(), 1);
    QCOMPARE(finished[0][0].toInt(), result);
}

void TestPreferences::pickersFillTheirField_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("fieldName");
    QTest::addColumn<QString>("file");
    QTest::addColumn<QStringList>("filters");

    const QStringList sounds{u"Audio Files (*.wav)"_s};
    const QStringList programs{u"Executables (*.exe)"_s, u"All files (*)"_s};
    const auto row = [](const char *what, const QString &button, const QString &fieldName,
                        const QString &file, const QStringList &filters) {
        QTest::newRow(what) << button << fieldName << file << filters;
    };
    row("errors", u"pickErrorSound"_s, u"errorSoundPath"_s, u"ping.wav"_s, sounds);
    row("warnings", u"pickWarningSound"_s, u"warningSoundPath"_s, u"ping.wav"_s, sounds);
    row("successes", u"pickSuccessSound"_s, u"successSoundPath"_s, u"ping.wav"_s, sounds);
    row("starts", u"pickStartSound"_s, u"startSoundPath"_s, u"ping.wav"_s, sounds);
    row("service", u"pickServiceSound"_s, u"serviceSoundPath"_s, u"ping.wav"_s, sounds);
    row("viewer", u"pickImageViewer"_s, u"imageViewer"_s, u"viewer.exe"_s, programs);
    row("viewer without suffix", u"pickImageViewer"_s, u"imageViewer"_s, u"viewer"_s, programs);
}

void TestPreferences::pickersFillTheirField()
{
    QFETCH(const QString, button);
    QFETCH(const QString, fieldName);
    QFETCH(const QString, file);
    QFETCH(const QStringList, filters);
    auto *target = child<QLineEdit>(fieldName);
    target->setText(u"/old"_s);

    whenChooserOpens([&filters](QFileDialog &chooser) {
        QTest::keyClick(&chooser, Qt::Key_Escape);
        QCOMPARE(chooser.windowTitle(), u"Select File"_s);
        QCOMPARE(chooser.parent(), nullptr);
        QCOMPARE(chooser.directory().path(), u"/"_s);
        QCOMPARE(chooser.nameFilters(), filters);
    });
    click(child<QWidget>(button));
    QCOMPARE(target->text(), u"/old"_s);

    const QString path = m_folder.filePath(file);
    whenChooserOpens([&path](QFileDialog &chooser) { typePath(chooser, path); });
    click(child<QWidget>(button));
    QCOMPARE(target->text(), path);
    Settings untouched = m_dialog->values({});
    target->clear();
    QVERIFY(untouched != Settings());
    QCOMPARE(m_dialog->values({}), Settings());
}

void TestPreferences::pickerOutlivesTheDialog()
{
    const QString path = m_folder.filePath(u"ping.wav"_s);
    bool chosen = false;
    whenChooserOpens([this, &path, &chosen](QFileDialog &chooser) {
        m_dialog.reset();
        typePath(chooser, path);
        chosen = true;
    });
    m_dialog->selectErrorSound();
    QVERIFY(chosen);
}

int main(int argc, char **argv)
{
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication application(argc, argv);
    TestPreferences test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_preferences.moc"
