#pragma once

#include <QtGlobal>

#include <string>

#include <sys/stat.h>

/// Of a file that is there; links are not followed.
inline struct stat statusOf(const std::string& name)
{
    struct stat status = {};
    if (lstat(name.c_str(), &status) != 0)
        qFatal("no %s", name.c_str());
    return status;
}
