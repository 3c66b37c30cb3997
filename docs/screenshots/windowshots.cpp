// Shows the window as a person sees it from the first moment to the results, with documents of its own,
// and keeps pictures: windowshots FOLDER WORK [SUFFIX]. The environment says in which language, at what
// scale, and with QUINTAR_SHOTS=dark in which colours.
#include "host/desktop/MainWindow.h"
#include "host/desktop/platform/Language.h"
#include "host/program/HostApplication.h"
#include "pdflibrary/ViewNumbers.h"
#include "samples/SampleDocument.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QEventLoop>
#include <QScreen>
#include <QTableView>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <functional>

using namespace host;
using namespace host::desktop;
using State = RunMachine::State;

namespace {

const int settleMilliseconds = 1200;
const int longestWait = 60;

QString folder;
QString suffix;

[[noreturn]] void fail(const QString& reason)
{
    std::fprintf(stderr, "%s\n", qPrintable(reason));
    std::_Exit(1);
}

void settle()
{
    QEventLoop loop;
    QTimer::singleShot(settleMilliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

void waitFor(MainWindow& window, State state)
{
    for (int turn = 0; window.workbench().machine().state() != state; ++turn) {
        if (turn > longestWait)
            fail("The window did not get on");
        settle();
    }
    settle();
}

void keep(QWidget& window, const QString& name)
{
    settle();
    const QRect area = window.frameGeometry();
    const QString file = folder + "/" + name + suffix + ".png";
    if (!window.screen()->grabWindow(0, area.x(), area.y(), area.width(), area.height()).save(file))
        fail("Cannot write " + file);
}

struct Manual
{
    const char* name;
    const char* title;
    int pages;
    const char* key;
    const char* value;
};

const Manual manuals[] = {
    {"band-saw.pdf", "Band saw, operating manual", 24, "/PageMode", "/UseNone"},
    {"coolant-pump.pdf", "Coolant pump", 12, nullptr, nullptr},
    {"dust-extraction.pdf", "Dust extraction, planning guide", 36, "/PageMode", "/UseOutlines"},
    {"fork-lift.pdf", "Fork lift, daily checks", 4, nullptr, nullptr},
    {"lathe-1.pdf", "Lathe, volume 1: Setting up", 48, "/PageMode", "/UseNone"},
    {"lathe-2.pdf", "Lathe, volume 2: Turning", 64, "/PageLayout", "/TwoColumnRight"},
    {"lathe-3.pdf", "", 40, "/OpenAction", "[2 /Fit]"},
    {"milling-head.pdf", "Milling head", 18, nullptr, nullptr},
    {"press-brake.pdf", "Press brake, safety", 22, "/AcroForm",
     "<< /Fields [ << /FT /Sig /T (one) /V << /Type /Sig /ByteRange [0 10 20 30] >> >> ] >>"},
    {"robot-cell.pdf", "Robot cell", 56, "/PageMode", "/UseThumbs"},
    {"spindle.pdf", "Spindle, exchange and balancing", 16, nullptr, nullptr},
    {"tool-changer.pdf", "Tool changer", 20, "/PageMode", "/FullScreen"},
    {"vice.pdf", "Machine vice", 8, nullptr, nullptr},
    {"warranty.pdf", "Warranty", 2, nullptr, nullptr},
    {"water-jet.pdf", "Water jet cutter", 44, "/PageLayout", "/OneColumn"},
    {"welding-table.pdf", "Welding table, assembly", 10, nullptr, nullptr},
};

void lock(QPDFWriter& writer)
{
    writer.setR6EncryptionParameters("reader", "owner", true, true, true, true, true, true, qpdf_r3p_full,
                                     true);
}

void makeDocuments(const QString& place)
{
    QDir().mkpath(place);
    for (const Manual& manual : manuals) {
        SampleDocument document(manual.title, 595, 842);
        const char* headings[] = {"Before you begin",       "Safety",      "Parts and tools",
                                  "Transport and assembly", "First start", "Maintenance"};
        for (int page = 0; page < manual.pages; ++page)
            document.addPage(page < 6 ? headings[page] : "Chapter " + std::to_string(page + 1), 24);
        if (manual.key != nullptr)
            document.setCatalogEntry(manual.key, manual.value);
        const std::string file = QFile::encodeName(place + "/" + manual.name).toStdString();
        if (QByteArray(manual.name) == "warranty.pdf")
            document.write(file, lock);
        else
            document.write(file);
    }
    QFile torn(place + "/torn-download.pdf");
    if (!torn.open(QIODevice::WriteOnly) || torn.write("%PDF-1.7\n1 0 obj\n<< /Ty") < 0)
        fail("Cannot write documents");
}

void makeDark()
{
    QPalette dark(QColor(49, 54, 59), QColor(35, 38, 41));
    dark.setColor(QPalette::WindowText, QColor(239, 240, 241));
    dark.setColor(QPalette::Text, QColor(239, 240, 241));
    dark.setColor(QPalette::ButtonText, QColor(239, 240, 241));
    dark.setColor(QPalette::Base, QColor(35, 38, 41));
    dark.setColor(QPalette::AlternateBase, QColor(42, 46, 50));
    dark.setColor(QPalette::Button, QColor(49, 54, 59));
    dark.setColor(QPalette::Highlight, QColor(29, 99, 153));
    dark.setColor(QPalette::HighlightedText, Qt::white);
    dark.setColor(QPalette::ToolTipBase, QColor(49, 54, 59));
    dark.setColor(QPalette::ToolTipText, QColor(239, 240, 241));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        dark.setColor(QPalette::Disabled, role, QColor(120, 124, 128));
    QApplication::setPalette(dark);
}

void choose(MainWindow& window, const QByteArray& name)
{
    const DocumentTable& table = window.workbench().table();
    for (const DocumentRecord& record : table.records())
        if (record.path.endsWith("/" + name))
            window.workbench().order().select({record.id}, record.id);
}

void keepTheQuestion(MainWindow& window)
{
    QTimer::singleShot(
        0, &window, [&window] { QMetaObject::invokeMethod(window.findChild<QAction*>("Start"), "trigger"); });
    settle();
    auto* question = window.findChild<QDialog*>("startQuestion");
    if (question == nullptr)
        fail("Nothing was asked");
    question->move(window.geometry().center() - question->rect().center());
    keep(window, "window-start");
    question->reject();
    settle();
}

void takePictures(MainWindow& window, const QString& documents)
{
    keep(window, "window-empty");
    window.begin({QFile::encodeName(documents)});
    waitFor(window, State::Listed);
    choose(window, "lathe-1.pdf");
    keep(window, "window-list");
    ChangeDraft draft;
    draft.set(ViewEntry::PageMode, pdflibrary::BookmarksPanel);
    draft.set(ViewEntry::DisplayDocTitle, 1);
    window.workbench().setDraft(draft);
    waitFor(window, State::Ready);
    settle();
    keep(window, "window");
    keepTheQuestion(window);
    window.workbench().start();
    window.workbench().pause();
    keep(window, "window-running");
    window.workbench().resume();
    waitFor(window, State::Results);
    choose(window, "press-brake.pdf");
    keep(window, "window-results");
    for (QTableView* list : window.findChildren<QTableView*>())
        list->setFocus();
    keep(window, "window-focus");
}

} // namespace

int main(int argc, char** argv)
{
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    const std::unique_ptr<QCoreApplication> application = hostapplication::forWindows(argc, argv);
    if (argc < 3)
        fail("Usage: windowshots FOLDER WORK [SUFFIX]");
    folder = argv[1];
    const QString work = argv[2];
    suffix = argc > 3 ? argv[3] : "";
    QApplication::setStyle("Fusion");
    if (qEnvironmentVariable("QUINTAR_SHOTS") == "dark")
        makeDark();
    language::choose();
    makeDocuments(work + "/manuals");
    MainWindow window({QUINTAR_PROGRAM, work + "/runs", work + "/sessions", work + "/window.ini",
                       work + "/views", QUINTAR_DRAWER});
    window.move(0, 0);
    window.show();
    window.activateWindow();
    takePictures(window, work + "/manuals");
    return 0;
}
