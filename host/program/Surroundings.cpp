#include "Surroundings.h"

#include "host/terminal/UsageError.h"

#include <sys/auxv.h>

#include <array>
#include <cstdlib>

namespace host::surroundings {

namespace {

/// Of Qt, the C library, Xlib, drivers of OpenGL, and what themes of desktops and libraries below bring along.
constexpr std::array placesOfCode{
    "LD_LIBRARY_PATH",
    "QT_PLUGIN_PATH",
    "QT_QPA_PLATFORM_PLUGIN_PATH",
    "QML_IMPORT_PATH",
    "QML2_IMPORT_PATH",
    "GCONV_PATH",
    "LIBGL_DRIVERS_PATH",
    "LIBGL_DRIVERS_DIR",
    "GBM_DRIVERS_PATH",
    "GBM_BACKENDS_PATH",
    "__EGL_VENDOR_LIBRARY_DIRS",
    "__EGL_VENDOR_LIBRARY_FILENAMES",
    "__EGL_EXTERNAL_PLATFORM_CONFIG_DIRS",
    "__EGL_EXTERNAL_PLATFORM_CONFIG_FILENAMES",
    "VK_DRIVER_FILES",
    "VK_ICD_FILENAMES",
    "VK_LAYER_PATH",
    "VK_ADD_LAYER_PATH",
    "VK_ADD_DRIVER_FILES",
    "QT_VULKAN_LIB",
    "XLOCALELIBDIR",
    "GTK_PATH",
    "GTK_EXE_PREFIX",
    "GTK_MODULES",
    "GTK3_MODULES",
    "GTK_IM_MODULE_FILE",
    "GIO_EXTRA_MODULES",
    "GIO_MODULE_DIR",
    "GDK_PIXBUF_MODULE_FILE",
    "GDK_PIXBUF_MODULEDIR",
    "OPENSSL_CONF",
    "OPENSSL_ENGINES",
    "OPENSSL_MODULES",
};

} // namespace

void refuseForeignRights()
{
    if (getauxval(AT_SECURE) != 0)
        throw UsageError("it does not run with other rights than its user's (set-user-ID, set-group-ID, "
                         "capabilities of its file)");
}

void forgetPlacesOfCode()
{
    for (const char* variable : placesOfCode)
        unsetenv(variable);
}

} // namespace host::surroundings
