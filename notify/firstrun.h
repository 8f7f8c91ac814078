#pragma once

#include <notify/settings/linksettings.h>

#include <QtWidgets/QDialog>

#include <memory>
#include <utility>

class ConnectionTest;
class FieldChecks;

namespace Ui {
class FirstRunClass;
}

/// Asks for what a connection takes, tests it on demand, and tells what the tray's icon means. Not modal: the client goes on
/// beside it. "Connect" hands the values over and closes it, "Later" closes it.
class FirstRun final : public QDialog {
    Q_OBJECT

public:
    explicit FirstRun(const LinkSettings &current, QWidget *parent = nullptr);
    ~FirstRun() override;

    void accept() override;

Q_SIGNALS:
    void connectRequested(const LinkSettings &link);

protected:
    void showEvent(QShowEvent *event) override;

private:
    void explainIcons();
    void addIcons(const QList<std::pair<const char *, QString>> &icons, int column);
    bool canTakeFields();
    LinkSettings link() const;
    void test();
    void showTest();
    void takePlace();

    std::unique_ptr<Ui::FirstRunClass> m_ui;
    LinkSettings m_current;
    FieldChecks *m_checks;
    ConnectionTest *m_test;
};
