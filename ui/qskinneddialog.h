#pragma once

#include <QtWidgets/QDialog>

#include <array>

class QGridLayout;
class QPushButton;
class QSkinnedDialogBorder;
class QSkinnedDialogHeader;
class QHeaderLabel;

/// A dialog with a frame of its own: a header that moves it and eight borders that resize it, painted by the style
/// sheet, round a content that callers fill. It can remember a default size and position in the settings.
/// The frame is built when the dialog is first shown, or earlier by buildFrame().
class QSkinnedDialog : public QDialog {
    Q_OBJECT

public:
    explicit QSkinnedDialog(QWidget *parent = nullptr, bool resizable = true);
    ~QSkinnedDialog() override;

    /// The widget to fill; its title and modality become the dialog's. Owned by the dialog.
    QDialog *content() const { return m_content; }
    bool isResizable() const { return m_resizable; }

    /// Under which the default size and position are kept in the settings.
    void setName(const QString &name) { m_name = name; }
    /// Off before the frame is built: the content alone, in the platform's own window frame.
    void setSkinned(bool skinned) { m_skinned = skinned; }
    void setShowSetSize(bool show);
    void setShowRefresh(bool show);
    void setResizable(bool resizable) { m_resizable = resizable; }
    /// Off: Escape is swallowed and the close button disabled.
    void setEscapeCloses(bool closes);
    /// In pixels.
    void setBorderWidth(int width);
    /// Shown as plain text; the first line of it, where it is long its beginning.
    void setTitle(const QString &text);

    /// Takes the content in and puts the frame round it; a second call does nothing.
    void buildFrame();
    void setVisible(bool visible) override;

Q_SIGNALS:
    void refresh();

public Q_SLOTS:
    /// Rejects a modal dialog, closes another.
    void mayClose();
    void setDefaults();
    void setRefresh();
    /// Stores the present geometry as the default, with showPopup only after the user has said yes.
    virtual void setDefaultState(bool showPopup = true);
    /// Takes the stored geometry, brought onto the present screens; does nothing when none was stored.
    virtual void loadDefaultState();

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void takeOverModality();
    void buildHeader();
    void placeBorders(QGridLayout *grid);
    void applyBorderWidth();
    void approachParent();
    void escapePressed(QKeyEvent *event);
    void settlePosition();
    QPushButton *addHeaderButton(const QString &image, const QString &name);

    QDialog *const m_content;
    QString m_name;
    bool m_skinned = true;
    bool m_showSetSize = false;
    bool m_showRefresh = false;
    bool m_resizable;
    bool m_escapeCloses = true;
    int m_borderWidth = 5;
    // Between a show and the first expose; null otherwise.
    QPoint m_askedPosition;

    // Null until the frame is built.
    QSkinnedDialogHeader *m_header = nullptr;
    QHeaderLabel *m_headerLabel = nullptr;
    QPushButton *m_refreshButton = nullptr;
    QPushButton *m_setSizeButton = nullptr;
    QPushButton *m_closeButton = nullptr;
    std::array<QSkinnedDialogBorder *, 8> m_borders{};
};
