#pragma once

#include <QDir>
#include <QPointF>
#include <QString>
#include <QTransform>

/// The host's per-user folders, fresh temporary names, what the machine can draw, and the arithmetic of
/// placing items on a page; all static.
///
/// Nothing here throws or shows a message. The folder getters may be called from any thread; they only
/// compose paths: they neither create nor check anything, and some paths hold a doubled slash, which the file
/// system reads as one. Paths are absolute unless said. None ends with a slash except GetAppDataToolsFolder.
class CUtils
{
public:
    /// Sets the host's name, for GetAppName alone: no folder's path depends on it.
    static void SetAppName(QString name);
    /// The name given last, or "Plexor" when that is empty.
    static QString GetAppName();

    /// The user's folder for data of all applications (QStandardPaths::GenericDataLocation).
    static QString GetAppDataFolder();
    /// The root of the host's own folders, below that; its path ends with a slash.
    static QString GetAppDataToolsFolder();
    /// Action lists, "*.xqq".
    static QString GetSequenceFolder();
    /// Reports of runs.
    static QString GetReportsFolder();
    /// Log files.
    static QString GetAppLogFolder();
    /// "WF" below the root; what lies there is the host's matter.
    static QString GetWFFolder();
    /// Settings of viewer and dialogs, remembered locations and links: "*.qsf".
    static QString GetSettingsFolder();
    /// Favourites, "*.ini".
    static QString GetCollectionsFolder();
    /// Templates of the advanced split actions.
    static QString GetAdvSplitTemplatesFolder();
    /// "./Tools", relative to the current folder of the process.
    static QString GetActionFolder();

    /// Creates what is missing of the folders above, and of "Input" and "Output" in a folder of the
    /// application's name (QCoreApplication) among the user's documents. A folder that cannot be made is left
    /// missing, and so are those below it; nothing tells of it.
    static void SetupFolders();

    /// Creates a folder in the system's temporary folder. The caller removes it.
    /// \param[in,out] name the wanted name; afterwards the full path. A name that is taken gets "_0" to
    ///     "_99999" at its end.
    /// \returns the folder. When it cannot be made, the temporary folder itself, which is not to be removed.
    static QDir GetNewTempFolder(QString* name);

    /// \param prefix what the name begins with, UTF-8; "_", a number and ".pdf" follow.
    /// \returns a path in the system's temporary folder where nothing exists yet, or an empty string when the
    ///     numbers 1 to 9999 are all taken. Nothing is created or reserved: another program may take the name
    ///     before the caller does.
    static QString GetNewTempFile(char* prefix);

    /// Whether OpenGL is good enough for translucent windows. False without a GUI application, without a
    /// usable driver, and off the GUI thread. The first answer that a GUI application gives is kept, as
    /// asking takes a context and some time. A program that defines QGLFormat::openGLVersionFlags() itself is
    /// asked each time.
    static bool CheckOpenGLSupport();

    // Placement. Any thread.

    /// A length in another unit.
    /// \param fromUnit, toUnit 0 inches, 1 centimetres, 2 millimetres, 3 points (72 to the inch).
    /// \returns the length in the new unit; the value as it is when one of the units is any other number.
    static double Convert(long fromUnit, double value, long toUnit);

    /// The adjugate of a 3 by 3 matrix, which serves as its inverse where a common factor does not matter, as
    /// in projective mappings.
    /// \param[out] adjoint the adjugate: a * adjoint is the determinant times the identity.
    /// \returns the determinant, 0 included.
    static double mx3d_adjoint(QTransform a, QTransform& adjoint);

    /// Maps the unit square's corners (0, 0), (1, 0), (1, 1), (0, 1) to p0, p1, p2, p3.
    /// \returns 1 for an affine and 2 for a projective mapping; 0, the matrix unchanged, when p1, p2 and p3
    ///     lie on one line.
    static int pmap_square_quad(QPointF p0, QPointF p1, QPointF p2, QPointF p3, QTransform& squareToQuad);

    /// Maps the rectangle's corners (uStart, vStart), (uEnd, vStart), (uEnd, vEnd), (uStart, vEnd) to p0, p1,
    /// p2, p3.
    /// \returns false, the matrix unchanged, for a rectangle without area or where pmap_square_quad gives 0.
    static bool pmap_quad_rect(double uStart, double vStart, double uEnd, double vEnd, QPointF p0, QPointF p1,
                               QPointF p2, QPointF p3, QTransform& rectToQuad);

    /// As SetAppName left it, empty before.
    static QString mApplicationName;
};
