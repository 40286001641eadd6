#pragma once

#include <QPixmap>
#include <QPoint>
#include <QSize>
#include <QWidget>

#include <memory>

/// What a person sees and does, without the person.
namespace Screen {

void press(QWidget* widget, const QPoint& position);
void move(QWidget* widget, const QPoint& position);
void release(QWidget* widget, const QPoint& position);

/// Delivers what is posted, so that what has changed is painted and handed to the window system.
void flush();

/// Shows a window of its own with this content in all of it, painted.
std::unique_ptr<QWidget> show(QWidget* content, const QSize& size);

/// A picture in which no two places look alike.
QPixmap testPicture(const QSize& size);

} // namespace Screen
