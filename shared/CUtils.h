#pragma once

#include <QDir>
#include <QPointF>
#include <QString>
#include <QTransform>

#include <optional>

/// The host's per-user folders, fresh temporary names, what the machine can draw, and the arithmetic of
/// placing items on a page.
///
/// The folder getters only compose paths: they neither create nor check anything, and some paths hold a
/// doubled slash, which the file system reads as one. None ends with a slash except GetAppDataToolsFolder.
class CUtils
{
public:
    static void SetAppName(QString name);
    /// The name given last, or "Plexor" when that is empty.
    static QString GetAppName();

    static QString GetAppDataFolder();
    static QString GetAppDataToolsFolder();
    static QString GetSequenceFolder();
    static QString GetReportsFolder();
    static QString GetAppLogFolder();
    static QString GetWFFolder();
    static QString GetSettingsFolder();
    static QString GetCollectionsFolder();
    static QString GetAdvSplitTemplatesFolder();
    /// "./Tools", relative to the current folder of the process.
    static QString GetActionFolder();

    /// Creates what is missing of the folder tree, one level at a time. A folder that cannot be made is left
    /// missing, and so are those below it.
    static void SetupFolders();

    /// Creates a folder in the system's temporary folder.
    /// \param[in,out] name the wanted name; afterwards the full path. A name that is taken gets "_0", "_1",
    /// ... \returns the folder; the temporary folder itself when it cannot be made.
    static QDir GetNewTempFolder(QString* name);

    /// \param prefix UTF-8.
    /// \returns a path in the system's temporary folder where nothing exists yet, or an empty string when the
    ///     numbers 1 to 9999 are all taken. Nothing is created or reserved.
    static QString GetNewTempFile(char* prefix);

    /// Whether OpenGL is good enough for translucent windows. False without a GUI application, without a
    /// usable driver, and off the GUI thread. The first answer that a GUI application gives is kept.
    static bool CheckOpenGLSupport();

    /// The test behind CheckOpenGLSupport, on flags as QGLFormat::openGLVersionFlags gives them.
    static bool OpenGLFlagsSuffice(int flags);

    /// Replaces the machine's answer to CheckOpenGLSupport; nothing restores it.
    static void SetOpenGLSupport(std::optional<bool> answer);

    // Placement. Any thread.

    /// \param fromUnit, toUnit 0 inches, 1 centimetres, 2 millimetres, 3 points; any other number leaves the
    ///     value as it is.
    static double Convert(long fromUnit, double value, long toUnit);

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

private:
    static QString mApplicationName;
};
