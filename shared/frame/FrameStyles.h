#pragma once

/// The style sheets of the dialog frame, as CQuintarDialog sets them, some with places for QString::arg(). The
/// images are those of the host's resources; one that is missing there leaves its place empty.
namespace framestyles {

// clang-format off

/// "main_widget" is what every dialog calls its own widget, "button_widget" a row of buttons in it.
inline constexpr char mainFrame[] =
    R"(QWidget#main_widget {background-color: rgb(255,255,255);color: rgb(0, 0, 0);})"
    R"(QFrame#QDmainFrame {background: rgb(147, 147 ,147);border: 1px solid rgb(50,50,170);})"
    R"(QGroupBox {border: 1px solid rgb(190,190,190);margin: 4px;margin-top: 6px;padding-top: 5px;})"
    R"(QGroupBox::title {padding-left: 2px;padding-right: 2px;left: 10px;top: -5 px;})"
    R"(QLineEdit::disabled {background-color: rgb(235,235,235);})"
    R"(QWidget#button_widget {color: white;background-color:)"
    R"(qlineargradient(spread:repeat, x1:0, y1:0, x2:0, y2:1, stop:0 rgba(70,90,160), stop:1 rgba(40,60,90));)"
    R"(border-top-left-radius: 6px;border-bottom-left-radius: 6px;)"
    R"(border-top-right-radius: 6px;border-bottom-right-radius: 6px;})";

/// A text of `mainFrame`, and what takes its place.
struct Replacement
{
    const char* before;
    const char* after;
};

/// What turns the main window's blue frame into the grey-brown one, in this order.
inline constexpr Replacement greyBrown[] = {
    {"background: rgb(0,0,31);", "background: rgb(40,36,36);"},
    {"rgb(50,50,170);", "rgb(140,130,130);"},
    {"rgba(70,90,160)", "rgba(140,130,130)"},
    {"rgba(40,60,90)", "rgba(40,36,36)"},
};

/// The bar at the top, with its picture at the left.
inline constexpr char header[] =
    "QFrame#QDheaderFrame {\n"
    "background-image: url(:/Quintar/Resources/QuintarHeader.png);\n"
    "background-repeat: no-repeat;\n"
    "}";

/// The two texts in it.
inline constexpr char prefix[] = "color:white;";
inline constexpr char title[] = "color: white;";

/// The pieces of the frame's shadow, in the corners: %1 object name, %2 image, %3 repeat, %4 position.
inline constexpr char shadowCorner[] =
    "QFrame#%1 {\n"
    "background-image: url(:/Quintar/Resources/%2);\n"
    "background-repeat: %3;\n"
    "background-position: %4;\n"
    "border: 0px transparent;\n"
    "}";

/// And between them: %1 object name, %2 image, %3 repeat.
inline constexpr char shadowEdge[] =
    "QFrame#%1 {\n"
    "background-image: url(:/Quintar/Resources/%2);\n"
    "background-repeat: %3;\n"
    "border: 0px transparent;\n"
    "\n"
    "}";

/// The buttons in the header. There is no "none.png": it stands for no picture.
inline constexpr char headerButton[] =
    R"(QToolButton {background-color: transparent;color: white;background-image: url(none.png);border: none;})"
    R"(QToolButton QWidget {background-color: black;})"
    R"(QToolButton:disabled{background-color: transparent;color: silver;background-image: url(none.png);border: none;})"
    R"(QToolButton:checked{background-color: )"
    R"(qlineargradient(spread:repeat, x1:0, y1:0, x2:1, y2:0, stop:0 rgba(210, 210, 210), stop:1 rgba(210, 210, 210));)"
    R"(color: white;background-image: url(none.png);border: none;})"
    R"(QToolButton:hover{background-color: )"
    R"(qlineargradient(spread:repeat, x1:0, y1:0, x2:1, y2:0, stop:0 rgba(210, 210, 210), stop:1 rgba(210, 210, 210));)"
    R"(color: white;background-image: url(none.png);border: none;})"
    R"(QToolButton:pressed {background-color: )"
    R"(qlineargradient(spread:repeat, x1:0, y1:0, x2:1, y2:0, stop:0 rgba(210, 210, 210), stop:1 rgba(210, 210, 210));)"
    R"(color: white;background-image: url(none.png);border: none;})"
    R"(QToolTip {background-color: white;color: black;background-image: url(none.png);border: none;})";

// clang-format on

} // namespace framestyles
