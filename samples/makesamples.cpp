// Makes sample documents that open in different ways, in the folder that is given.
#include "SampleDocument.h"

#include <cstdio>
#include <exception>
#include <filesystem>

namespace {

void makeManual(const std::string& folder)
{
    SampleDocument manual("Garden Pump: Operating Manual", 595, 842);
    for (const char* heading :
         {"Cover", "Safety", "Parts", "Assembly", "Operation", "Care", "Faults", "Index"})
        manual.addPage(heading, 30);
    manual.write(folder + "/manual.pdf");
}

void makeSlides(const std::string& folder)
{
    SampleDocument slides("Quarterly Figures", 960, 540);
    for (const char* heading : {"Welcome", "Sales", "Costs", "Outlook"})
        slides.addPage(heading, 6);
    slides.setCatalogEntry("/PageMode", "/FullScreen");
    slides.setCatalogEntry("/ViewerPreferences", "<< /HideToolbar true /NonFullScreenPageMode /UseThumbs >>");
    slides.write(folder + "/slides.pdf",
                 [](QPDFWriter& writer) { writer.setObjectStreamMode(qpdf_o_generate); });
}

void makeReport(const std::string& folder)
{
    SampleDocument report("Annual Report", 612, 792);
    for (const char* heading : {"Summary", "Balance", "Notes"})
        report.addPage(heading, 38);
    report.setCatalogEntry("/PageLayout", "/TwoPageRight");
    report.setCatalogEntry("/OpenAction", "[ 2 /XYZ null null 0.5 ]");
    report.write(folder + "/report (encrypted).pdf", [](QPDFWriter& writer) {
        writer.setR6EncryptionParameters("", "owner", true, true, true, true, true, true, qpdf_r3p_full,
                                         true);
    });
}

} // namespace

int main(int argc, char** argv)
{
    try {
        const std::string folder = argc > 1 ? argv[1] : ".";
        std::filesystem::create_directories(folder + "/office");
        makeManual(folder);
        makeSlides(folder);
        makeReport(folder + "/office");
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "makesamples: %s\n", error.what());
        return 1;
    }
}
