#pragma once

#include <QtTest>

/// A mouse at work on a window, in screen coordinates. Its events take the window system's way, so widgets
/// get hover and double-click events as from a real mouse, and drags go on as the window moves.
class Hand
{
public:
    explicit Hand(QWidget& window) : m_window(window.windowHandle()) {}

    void press(const QPoint& position, Qt::MouseButton button = Qt::LeftButton)
    {
        m_time += longerThanADoubleClick;
        m_buttons |= button;
        send(position, button, QEvent::MouseButtonPress);
    }

    void moveTo(const QPoint& position) { send(position, Qt::NoButton, QEvent::MouseMove); }

    void release(const QPoint& position, Qt::MouseButton button = Qt::LeftButton)
    {
        m_buttons &= ~button;
        send(position, button, QEvent::MouseButtonRelease);
    }

    /// Presses, draws through the middle of the way, as a hand would, and releases.
    void drag(const QPoint& from, const QPoint& to)
    {
        press(from);
        moveTo((from + to) / 2);
        moveTo(to);
        release(to);
    }

    void click(const QPoint& position, Qt::MouseButton button = Qt::LeftButton)
    {
        press(position, button);
        release(position, button);
    }

    void doubleClick(const QPoint& position, Qt::MouseButton button = Qt::LeftButton)
    {
        click(position, button);
        m_time -= longerThanADoubleClick;
        click(position, button);
    }

private:
    void send(const QPoint& position, Qt::MouseButton button, QEvent::Type type)
    {
        qt_handleMouseEvent(m_window, m_window->mapFromGlobal(position), position, m_buttons, button, type,
                            Qt::NoModifier, ++m_time);
        QCoreApplication::processEvents();
    }

    static constexpr int longerThanADoubleClick = 5000;
    QWindow* m_window;
    Qt::MouseButtons m_buttons;
    int m_time = 0;
};
