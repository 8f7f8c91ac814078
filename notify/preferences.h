#pragma once

#include <QtWidgets/QDialog>

#include <memory>
#include <optional>

enum class SoundFault;
struct Settings;
class FieldChecks;
class QLineEdit;
class SoundPlayer;

namespace Ui {
class preferencesClass;
}

/// Edits all options, on pages. Marks what cannot be taken for a number, and is not accepted with that; values() gives it as 0.
/// Comes up at the size it was left at, with the page shown last, while nothing is stored with that of the network. On a
/// screen lower than a page that scrolls, above buttons that stay in sight.
class preferences final : public QDialog {
    Q_OBJECT

public:
    explicit preferences(QWidget *parent = nullptr);
    ~preferences() override;

    /// Shows the dialog on the settings and waits for the user; null unless the user accepts.
    static std::optional<Settings> edit(const Settings &current, QWidget *parent);

    /// Puts what the fields hold over `current`.
    Settings values(const Settings &current) const;
    void setValues(const Settings &settings);

    void accept() override;
    void done(int result) override;

public Q_SLOTS:
    void selectViewer();
    void selectErrorSound();
    void selectWarningSound();
    void selectSuccessSound();
    void selectStartSound();
    void selectServiceSound();

protected:
    void showEvent(QShowEvent *event) override;
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    void connectPickers();
    void connectSounds();
    void connectNumbers();
    void hear(const QString &path);
    void tellWhySilent(const QString &path, SoundFault fault);
    /// Opens the page that the field is on, and scrolls to it.
    void showField(QLineEdit *field);
    void takePlace();

    std::unique_ptr<Ui::preferencesClass> m_ui;
    FieldChecks *m_checks;
    SoundPlayer *m_sounds;
    QSize m_initialSize;
};
