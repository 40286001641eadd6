#include "Screen.h"

#include <QApplication>
#include <QImage>
#include <QMouseEvent>
#include <QTest>

#include <stdexcept>

namespace {

void send(QWidget* widget, QEvent::Type type, const QPoint& position, Qt::MouseButton button,
          Qt::MouseButtons buttons)
{
    QMouseEvent event(type, position, widget->mapToGlobal(position), button, buttons,
                      Qt::NoModifier);
    QApplication::sendEvent(widget, &event);
}

} // namespace

namespace Screen {

void press(QWidget* widget, const QPoint& position)
{
    send(widget, QEvent::MouseMove, position, Qt::NoButton, Qt::NoButton);
    send(widget, QEvent::MouseButtonPress, position, Qt::LeftButton, Qt::LeftButton);
}

void move(QWidget* widget, const QPoint& position)
{
    send(widget, QEvent::MouseMove, position, Qt::NoButton, Qt::LeftButton);
}

void release(QWidget* widget, const QPoint& position)
{
    send(widget, QEvent::MouseButtonRelease, position, Qt::LeftButton, Qt::NoButton);
}

void flush()
{
    QCoreApplication::sendPostedEvents();
}

std::unique_ptr<QWidget> show(QWidget* content, const QSize& size)
{
    auto window = std::make_unique<QWidget>();
    window->resize(size);
    content->setParent(window.get());
    content->setGeometry(QRect(QPoint(0, 0), size));
    content->show();
    window->show();
    // Nothing is painted on a window that the window system does not show yet.
    if (!QTest::qWaitForWindowExposed(window.get()))
        throw std::runtime_error("a window does not appear");
    flush();
    return window;
}

QPixmap testPicture(const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        auto* pixel = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < size.width(); ++x)
            pixel[x] = qRgb(x * 7 + y, x ^ y, x + y * 5) | 0xff000000u;
    }
    return QPixmap::fromImage(std::move(image));
}

} // namespace Screen
