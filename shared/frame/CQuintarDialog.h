#pragma once

#include "CFramelessHandler.h"
#include "CQuintarHeaderButton.h"

#include <QBoxLayout>
#include <QDialog>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>

/// The frameless window that all dialogs derive from: a header with title and buttons above the derived
/// dialog's own widget, and the means to move and resize it. Its colours follow the host's window that it is
/// opened from. All widgets are children of the dialog. GUI thread; nothing here fails.
///
/// A derived dialog's constructor builds its form, then calls QDaddMainWidget, then adds the buttons that it
/// wants, from left to right, and sets the title:
///
///     ui.setupUi(this);
///     titleLabel->setText(windowTitle());
///     QDaddMainWidget(ui.main_widget, true);
///     QDaddTopButtons();
///     QDaddCloseButton();
///
/// The images come from the host's resources; one that is missing leaves its place empty.
class CQuintarDialog : public QDialog
{
    Q_OBJECT

public:
    /// \param parent its ancestors decide the colours: the nearest one named "QuintarClass" is the host's
    ///     main window, or named "QuintarPreviewClass" its preview, over which the dialog centres itself.
    ///     Null for a dialog of no host.
    /// \param flag kept for derived dialogs; the frame makes no use of it.
    CQuintarDialog(QWidget* parent, bool flag);
    ~CQuintarDialog() override;

public slots:
    /// Runs the dialog modally, in an event loop of its own.
    /// \returns QDialog::Accepted or QDialog::Rejected.
    int exec() override;

public:
    /// Puts the derived dialog's widget below the header, and sizes and centres the dialog by that widget's
    /// size: over the preview that it is opened from, else on the first screen. To be called once, when the
    /// widget has all its children. Lists and spin boxes among them turn by the wheel only with the focus.
    /// \param mainWidget should be named "main_widget", as the frame's style sheet colours that one white;
    ///     the dialog owns it from now on.
    /// \param fixedSize the dialog cannot be resized, and gets a smaller font where texts would be cut off;
    ///     else the widget's size is the least one.
    void QDaddMainWidget(QWidget* mainWidget, bool fixedSize);

    /// Appends a button to the header that rejects the dialog (Ctrl+W).
    void QDaddCloseButton();

    /// Appends the buttons "Add to/Create new Action" (Ctrl+L) and "Add to Favorites/Save settings" (Ctrl+D)
    /// to the header. They call on_QDShowSaveDialog() and on_QDShowSaveCollectionDialog(), slots that the
    /// derived dialog declares; Qt warns where it does not.
    void QDaddTopButtons();

    /// Hides the first of them, and its shortcut with it. Only after QDaddTopButtons.
    void QDhideAddToActionListButton();

protected:
    /// Whether the dialog was opened from a preview that still bears its name.
    bool underPreview() const;

    CFramelessHandler framelessHandler;
    /// The constructor's argument; the frame itself does not use it.
    bool dialogFlag;
    /// The header's buttons; null until they are added. All widgets below are the dialog's children.
    CQuintarHeaderButton* closeButton = nullptr;
    CQuintarHeaderButton* addToActionListButton = nullptr;
    CQuintarHeaderButton* addToCollectionsButton = nullptr;
    QGridLayout* gridLayout;
    QFrame* shadowTopLeft;
    QFrame* shadowTop;
    QFrame* shadowTopRight;
    QFrame* shadowLeft;
    QFrame* mainFrame;
    QVBoxLayout* mainLayout;
    QWidget* headerWidget;
    QHBoxLayout* headerLayout;
    QLabel* prefixLabel;
    /// Empty until the derived dialog sets it.
    QLabel* titleLabel;
    QWidget* contentWidget;
    QFrame* shadowRight;
    QFrame* shadowBtmLeft;
    QFrame* shadowBtm;
    QFrame* shadowBtmRight;
    QVBoxLayout* contentLayout;
    /// The ancestor named "QuintarPreviewClass", or null. Not owned.
    QWidget* previewHost = nullptr;
    int fixedHeight = 0;
    /// Pixels that the dialog is larger than its main widget.
    int extraHeight;
    int extraWidth;

private:
    enum class Host { None, MainWindow, Preview };

    Host findHost(QWidget* ancestor);
    void setUpWindow();
    void addTopShadows();
    void addBottomShadows();
    void addMainFrame(Host host);
    void addHeader(Host host);
    void addContent();
    void activateHandler();
    QRect centringArea() const;
};
