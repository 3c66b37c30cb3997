#!/usr/bin/python3
"""A file system whose names do not depend on case, which keeps its files in another folder.

    folding.py FOLDER MOUNTPOINT"""

import os
import sys

import fusepy as fuse


class Folding(fuse.Operations):
    def __init__(self, root):
        self.root = root

    def path(self, name):
        """The file that is there by any spelling of its name, or the one that would be."""
        place = self.root
        for part in filter(None, name.split("/")):
            there = os.listdir(place) if os.path.isdir(place) else []
            place = os.path.join(place, next((each for each in there if each.lower() == part.lower()), part))
        return place

    def getattr(self, name, file=None):
        status = os.lstat(self.path(name))
        return {"st_" + each: getattr(status, "st_" + each)
                for each in ("mode", "nlink", "uid", "gid", "size", "atime", "mtime", "ctime")}

    def readdir(self, name, file):
        return [".", "..", *os.listdir(self.path(name))]

    def create(self, name, mode, info=None):
        return os.open(self.path(name), os.O_RDWR | os.O_CREAT, mode)

    def open(self, name, flags):
        return os.open(self.path(name), flags)

    def read(self, name, size, offset, file):
        return os.pread(file, size, offset)

    def write(self, name, data, offset, file):
        return os.pwrite(file, data, offset)

    def release(self, name, file):
        os.close(file)

    def truncate(self, name, length, file=None):
        os.truncate(self.path(name), length)

    def rename(self, old, new):
        os.rename(self.path(old), self.path(new))

    def mkdir(self, name, mode):
        os.mkdir(self.path(name), mode)

    def unlink(self, name):
        os.unlink(self.path(name))

    def chmod(self, name, mode):
        os.chmod(self.path(name), mode)


fuse.FUSE(Folding(sys.argv[1]), sys.argv[2], nothreads=True, foreground=False)
