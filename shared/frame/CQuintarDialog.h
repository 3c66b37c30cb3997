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
/// opened from. All widgets are children of the dialog.
class CQuintarDialog : public QDialog
{
    Q_OBJECT

public:
    /// \param parent its ancestors decide the colours: the nearest one named "QuintarClass" is the host's main
    ///     window, or named "QuintarPreviewClass" its preview, over which the dialog centres itself. Null for a
    ///     dialog of no host.
    /// \param dialogFlag kept for derived dialogs; the frame makes no use of it.
    CQuintarDialog(QWidget* parent, bool dialogFlag);
    ~CQuintarDialog() override;

public slots:
    /// Runs the dialog modally. \returns QDialog::Accepted or QDialog::Rejected.
    int exec() override;

public:
    /// Puts the derived dialog's widget, which should be named "main_widget", below the header, and sizes and
    /// centres the dialog by that widget's size.
    /// \param fixedSize the dialog cannot be resized, and gets a smaller font where texts would be cut off;
    ///     else the widget's size is the least one.
    void QDaddMainWidget(QWidget* mainWidget, bool fixedSize);

    /// Appends a button that rejects the dialog to the header.
    void QDaddCloseButton();

    /// Appends the buttons "Add to/Create new Action" and "Add to Favorites/Save settings" to the header.
    /// They call on_QDShowSaveDialog() and on_QDShowSaveCollectionDialog(), slots that the derived dialog
    /// declares.
    void QDaddTopButtons();

    /// Only after QDaddTopButtons.
    void QDhideAddToActionListButton();

protected:
    /// Whether the dialog was opened from a preview that still bears its name.
    bool underPreview() const;

    CFramelessHandler framelessHandler;
    /// The constructor's argument; the frame itself does not use it.
    bool dialogFlag;
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
