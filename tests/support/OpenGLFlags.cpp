#include "OpenGLFlags.h"

#include <QtOpenGL/QGLFormat>

int openGLFlags = 0;

QGLFormat::OpenGLVersionFlags QGLFormat::openGLVersionFlags()
{
    return OpenGLVersionFlags(QFlag(openGLFlags));
}
