#pragma once

#include <QColor>
#include <QDir>
#include <QIcon>
#include <QList>
#include <QMap>
#include <QMatrix>
#include <QString>
#include <QStringList>
#include <QVariant>

class QComboBox;
class QFont;
class QLabel;
class QTextEdit;

/// Keywords of the split and extract commands, lower case; a keyword's position is its command number. Built
/// at load, never changed afterwards.
extern QStringList gCommandsList;

/// Helpers that every action plug-in of the host shares; all static.
///
/// Nothing here throws or shows a message: what fails shows in the result, or in nothing at all where that is
/// said. Pointers are lent for the call and never null unless said. Groups of helpers tell the threads that
/// may call them; those that keep files are for one thread at a time.
class CActionUtils
{
public:
    // Folders: the results of CUtils' getters of the same names, unchanged. Any thread.

    static QString GetSettingsFolder();
    static QString GetCollectionsFolder();
    static QString GetSequenceFolder();
    /// CUtils::GetAppDataToolsFolder.
    static QString GetQuintarAppDataFolder();

    // Action lists, "*.xqq" files in the sequence folder. GUI thread.

    /// Writes the settings as an action list, named by the map's "ActionListName" with "_" for each space; or
    /// adds them to the list of that name, when there is one and "ActionListOverwrite" is not true. A name
    /// that leads out of the folder or holds a NUL is refused: nothing happens. No failure is reported.
    /// \param[in,out] prefs the settings with "ActionName", "ActionListName", "ActionListCategory" and
    ///     "ActionListOverwrite". After a new list these four are gone; the map stays as it was after an
    ///     addition, and when the file in the new list's place cannot be replaced.
    static void SaveAsCustomActionList(QMap<QString, QVariant>* prefs);

    /// \returns "Default", "Favorites", then the other categories of the stored lists in the lists' order,
    ///     each once whatever its letter case.
    static QStringList GetActionListCategories();

    // Page ranges: text such as "1-3,7,10-12"; pages count from 1. Any thread.

    /// Whether the text is a well formed page list; spaces do not matter.
    /// \param allowReverse accepts "5-2" and "3-3".
    static bool ValidatePageRange(QString pageRange, bool allowReverse);

    /// Whether every part between semicolons is a well formed page list, reverse ranges allowed.
    static bool ValidateSplitPageRange(QString splitRange);

    /// Adds the pages that a text names, each once, and sorts the whole list. The text should be valid: a
    /// number that cannot be read counts as 0, and a reversed range names nothing.
    /// \param pageRange items separated by commas: a page, or a first and a last one joined by "-".
    /// \param pageCount a number above it is left out; a range is left out only when it starts above it.
    /// \returns false when the text is empty. An item that memory cannot hold adds nothing.
    static bool GetPageList(const QString& pageRange, int pageCount, bool skipOdd, bool skipEven,
                            QList<int>* pages);

    /// Appends the runs of a page list to `runs`: first page and number of pages of each, the run with the
    /// highest pages first. So a caller who deletes them in turn leaves the numbers of the others right.
    /// \param pages ascending, each page once; not changed.
    static void CollectPageList(QList<int>* pages, QList<int>* runs);

    // Pickers: drop-down lists with drawn samples. GUI thread.
    //
    // The drawn ones replace the box's model and pop-up view; the pop-up is as wide as the box is now. The
    // model has no parent; it goes with the box, or when another drawn picker is set up in the same box. The
    // others clear the box first. A row is the value that an action stores, so rows are never renumbered.

    /// \param none adds a first row "(none)".
    static void SetupColorPickerComboBox(QComboBox* box, bool none);
    /// Rows as Qt::PenStyle from Qt::SolidLine on.
    static void SetupLineStylePickerComboBox(QComboBox* box);
    /// Row 0 "(none)", then single, double, thick, dotted, dashed, dash and dot.
    static void SetupUnderlineStylePickerComboBox(QComboBox* box);
    /// Weights in points; a row's text is its number.
    static void SetupLineWeightPickerComboBox(QComboBox* box);
    /// The fonts that every viewer has, by name.
    static void SetupStandardFontsComboBox(QComboBox* box);
    /// Lists the machine's fonts as the PDF library names them; the box stays empty without the library.
    static void SetupSystemFontsComboBox(QComboBox* box);

    /// \param index a row of the colour picker with its "(none)" row.
    /// \returns black for a row without a colour of its own.
    static QColor GetColorPickerColor(int index);
    /// \returns the row of the colour picker with its "(none)" row; that of "Custom..." for any other colour.
    static int GetColorPickerIndex(QColor color);

    /// Dash and gap lengths of a border in points, whole numbers separated by spaces.
    /// \param width of the border in points.
    /// \param style 1 dashed, 2 short dashes, 3 dash and dot, 4 dash and two dots.
    /// \returns "invalid" for any other style.
    static QString GetBorderDash(int style, double width);

    // Remembered locations and links, one file in the settings folder. GUI thread.
    //
    // A file that cannot be read counts as empty; what cannot be saved is lost. Location keys and link keys
    // share one name space: an action takes keys that begin with its own name.

    /// \param location a folder's path, or any text; stored as it is.
    static void SaveLastVisitedLocation(QString key, QString location);
    /// \returns the desktop folder when nothing was saved under the key.
    static QString GetLastVisitedLocation(QString key);
    /// Puts the link first; the five latest are kept.
    static void SaveLastEnteredLink(QString key, QString link);
    /// \returns the links saved under the key, latest first.
    static QStringList GetLastEnteredLinks(QString key);

    // File names and strings. Any thread.

    /// The files below a folder that have one of the suffixes (without the dot, in any case), in name order,
    /// a subfolder's files where its name stands. Symbolic links and hidden entries are left out.
    /// \returns absolute paths; none for a folder that cannot be read.
    static QStringList SearchFilesInDir(QDir dir, QStringList suffixes, bool recursive);

    /// \param length of the whole text in characters, a minus sign included; a longer text stays as it is.
    static QString GetStringWithLeadingZeroesFromNumber(int number, int length);
    static QString GetStringWithLeadingZeroesFromString(QString text, int length);

    /// A name for a copy. Nothing is created or reserved.
    /// \returns the path when no file exists there, else the first free one with " (1)", " (2)", ... before
    ///     its last ".", or at its end when it has none.
    static QString AppendCopyNumberToFilename(QString path);

    /// Removes surrounding white space, then what no file name may hold on the usual systems.
    static void FixStringForFilename(QString* text);

    /// Replaces every "%ALLUSERSPROFILE%" by the folder "All Users" beside the user's home.
    static QString ReplaceEnvironmentPaths(QString path);

    /// The nearest integer, halves down; the nearest int beyond its range, 0 for what is not a number.
    static int Round(double value);

    // Help beside an action's settings: one pair of widgets for the whole process. GUI thread. Nothing
    // happens while a target is not set or after it is gone.

    /// \param navBarLabel tells the section; null for none.
    /// \param infoLabel shows the help; null for none. The caller keeps owning both.
    static void SetTargetLabels(QLabel* navBarLabel, QTextEdit* infoLabel);
    /// Shows a section's name in the first of the target widgets.
    static void SetCurrentSection(QString text);
    /// Shows HTML in the second.
    static void SetHelpHtml(QString html);
    /// Shows a help page of the host's resources; an unknown one empties the help box.
    static void SetHelp(QString name);
    /// \returns a tool image of the host's resources.
    static QIcon GetIconForTool(QString name);

    /// The target widgets; null before SetTargetLabels. Whoever sets them here sees to it that they live.
    static QLabel* mNavBarLabel;
    static QTextEdit* mInfoLabel;

    // Split and extract commands, by number in gCommandsList. Any thread.

    /// \param name in any case. \returns -1 when there is no such keyword.
    static int SplitComGetCommandIndex(QString name);
    /// \returns "INVALID_INDEX" when there is no such number.
    static QString SplitComGetCommandString(int index);

    // Placement of items stamped onto pages. A page's coordinates are points from its lower left corner.

    /// The matrix that takes the unit square to the item's place on the page: scaled, then turned, then moved
    /// so that its bounding box has the wanted distance from the page's edges. Any thread.
    /// \param prefs the settings of a placing action; a missing one stands for 100 %, no rotation, or no
    ///     distance from the left and upper edge.
    /// \param width, height, pageWidth, pageHeight points; y grows upward. Item size before scaling.
    static QMatrix Prefs2Matrix(QMap<QString, QVariant>* prefs, double width, double height, double pageWidth,
                                double pageHeight);

    /// Height of HTML text laid out at a width, in pixels. GUI thread.
    static double GetTextItemHeight(const QFont& font, const QString& html, double textWidth);

    /// Adds a picture of the text to the icon, at most 128 by 128; none when a side is below one pixel. GUI
    /// thread.
    /// \param width, height pixels of the page that the text is laid out on.
    static void GenerateTextItemIcon(double width, double height, const QString& text, QIcon* icon);
};
