"""The benchmarks' edit with PyMuPDF, saved incrementally: an output folder, then documents."""

import os
import shutil
import sys

import fitz

for path in sys.argv[2:]:
    target = os.path.join(sys.argv[1], os.path.basename(path))
    shutil.copyfile(path, target)
    document = fitz.open(target)
    catalog = document.pdf_catalog()
    page = document.page_xref(1)
    document.xref_set_key(catalog, "PageMode", "/UseOutlines")
    document.xref_set_key(catalog, "PageLayout", "/TwoPageRight")
    document.xref_set_key(catalog, "OpenAction", f"[{page} 0 R /Fit]")
    document.xref_set_key(catalog, "ViewerPreferences",
                          "<</HideToolbar true/HideMenubar true/HideWindowUI true/FitWindow true/CenterWindow true"
                          "/DisplayDocTitle true/NonFullScreenPageMode/UseOutlines>>")
    document.saveIncr()
    document.close()
