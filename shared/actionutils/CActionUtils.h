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
class CActionUtils
{
public:
    // Folders: the results of CUtils' getters, unchanged.
    static QString GetSettingsFolder();
    static QString GetCollectionsFolder();
    static QString GetSequenceFolder();
    /// CUtils::GetAppDataToolsFolder.
    static QString GetQuintarAppDataFolder();

    // Action lists in the sequence folder.

    /// Writes the settings as an action list, named by the map's "ActionListName" with "_" for each space; or
    /// adds them to the list of that name, when there is one and "ActionListOverwrite" is not true. A name
    /// that holds a "/" or a NUL is refused: nothing happens. No failure is reported.
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
    /// \param pageCount a number above it is left out; a range is left out only when it starts above it.
    /// \returns false when the text is empty.
    ///     An item that memory cannot hold adds nothing.
    static bool GetPageList(const QString& pageRange, int pageCount, bool skipOdd, bool skipEven,
                            QList<int>* pages);

    /// Appends the runs of an ascending page list to `runs`: first page and number of pages of each, the run
    /// with the highest pages first.
    static void CollectPageList(QList<int>* pages, QList<int>* runs);

    // Pickers: drop-down lists with drawn samples. GUI thread.
    //
    // The drawn ones replace the box's model and pop-up view. The model has no parent; it goes with the box,
    // or when another drawn picker is set up in the same box.

    /// \param none adds a first row "(none)".
    static void SetupColorPickerComboBox(QComboBox* box, bool none);
    static void SetupLineStylePickerComboBox(QComboBox* box);
    static void SetupUnderlineStylePickerComboBox(QComboBox* box);
    static void SetupLineWeightPickerComboBox(QComboBox* box);
    static void SetupStandardFontsComboBox(QComboBox* box);
    /// Lists the machine's fonts as the PDF library names them; the box stays empty without the library.
    static void SetupSystemFontsComboBox(QComboBox* box);

    /// \param index a row of the colour picker with its "(none)" row.
    /// \returns black for a row without a colour of its own.
    static QColor GetColorPickerColor(int index);
    /// \returns the row of the colour picker with its "(none)" row; that of "Custom..." for any other colour.
    static int GetColorPickerIndex(QColor color);

    /// Dash and gap lengths of a border, separated by spaces.
    /// \param style 1 dashed, 2 short dashes, 3 dash and dot, 4 dash and two dots.
    /// \returns "invalid" for any other style.
    static QString GetBorderDash(int style, double width);

    // Remembered locations and links, one file in the settings folder. A file that cannot be read counts as
    // empty; what cannot be saved is lost. Location keys and link keys share one name space.

    static void SaveLastVisitedLocation(QString key, QString location);
    /// \returns the desktop folder when nothing was saved under the key.
    static QString GetLastVisitedLocation(QString key);
    /// Puts the link first; the five latest are kept.
    static void SaveLastEnteredLink(QString key, QString link);
    /// \returns the links saved under the key, latest first.
    static QStringList GetLastEnteredLinks(QString key);

    // File names and strings.

    /// The files below a folder that have one of the suffixes (without the dot, in any case), in name order,
    /// a subfolder's files where its name stands. Symbolic links and hidden entries are left out.
    /// \returns absolute paths; none for a folder that cannot be read.
    static QStringList SearchFilesInDir(QDir dir, QStringList suffixes, bool recursive);

    /// \param length of the whole text, a minus sign included.
    static QString GetStringWithLeadingZeroesFromNumber(int number, int length);
    static QString GetStringWithLeadingZeroesFromString(QString text, int length);

    /// \returns the path when no file exists there, else the first free one with " (1)", " (2)", ... before
    ///     its last ".", or at its end when it has none.
    static QString AppendCopyNumberToFilename(QString path);

    /// Removes surrounding white space, then what no file name may hold on the usual systems.
    static void FixStringForFilename(QString* text);

    /// Replaces every "%ALLUSERSPROFILE%" by the folder "All Users" beside the user's home.
    static QString ReplaceEnvironmentPaths(QString path);

    /// The nearest integer, halves down; the nearest int beyond its range, 0 for what is not a number.
    static int Round(double value);

    // Help beside an action's settings. Nothing happens while a target is not set or after it is gone.

    /// The caller keeps both widgets.
    static void SetTargetLabels(QLabel* navBarLabel, QTextEdit* infoLabel);
    static void SetCurrentSection(QString text);
    static void SetHelpHtml(QString html);
    /// Shows a help page of the host's resources; an unknown one empties the help box.
    static void SetHelp(QString name);
    /// \returns a tool image of the host's resources.
    static QIcon GetIconForTool(QString name);

    /// As SetTargetLabels left them, null before; only the helpers above know whether the widgets still live.
    static QLabel* mNavBarLabel;
    static QTextEdit* mInfoLabel;

    // Split and extract commands, by number in gCommandsList. Any thread.

    /// \param name in any case. \returns -1 when there is no such keyword.
    static int SplitComGetCommandIndex(QString name);
    /// \returns "INVALID_INDEX" when there is no such number.
    static QString SplitComGetCommandString(int index);

    // Placement of items stamped onto pages.

    /// The matrix that takes the unit square to the item's place on the page, by the settings of a placing
    /// action. Any thread.
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
