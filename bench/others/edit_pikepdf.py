"""The benchmarks' edit with pikepdf: an output folder, then documents."""

import os
import sys

from pikepdf import Array, Dictionary, Name, Pdf

for path in sys.argv[2:]:
    with Pdf.open(path) as pdf:
        pdf.Root.PageMode = Name.UseOutlines
        pdf.Root.PageLayout = Name.TwoPageRight
        pdf.Root.OpenAction = Array([pdf.pages[1].obj, Name.Fit])
        pdf.Root.ViewerPreferences = Dictionary(
            HideToolbar=True, HideMenubar=True, HideWindowUI=True, FitWindow=True, CenterWindow=True,
            DisplayDocTitle=True, NonFullScreenPageMode=Name.UseOutlines)
        pdf.save(os.path.join(sys.argv[1], os.path.basename(path)))
