#pragma once

/// What a test's machine can draw: the test is linked with OpenGLFlags.cpp, whose function takes the place of
/// QGLFormat::openGLVersionFlags. 0, as at first, is no OpenGL; 2048 is enough for translucent windows.
extern int openGLFlags;
