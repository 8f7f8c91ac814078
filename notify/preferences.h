#pragma once

#include <QtWidgets/QDialog>

#include <memory>
#include <optional>

struct Settings;
class QLineEdit;

namespace Ui {
class preferencesClass;
}

/// Edits all options. Marks a port that is none, and refuses nothing: takes a number that does not parse for 0.
/// On a screen lower than the dialog its options scroll, above buttons that stay in sight.
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
    void fitToScreen();
    void checkPort(const QString &text);

    std::unique_ptr<Ui::preferencesClass> m_ui;
};
