#include "view/ui/map_picture.h"

#include "view/draw/map_drawing.h"
#include "view/draw/screen_painting.h"

#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>

namespace wayscribe {

namespace {
const QColor kBackground(40, 40, 44);
constexpr int kWheelNotch = 120; // eighths of a degree
} // namespace

MapPicture::MapPicture(QWidget *parent) : QWidget(parent)
{
    setObjectName("Picture1");
    setAccessibleName("Map");
    setMouseTracking(true);
    setCursor(Qt::CrossCursor);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    // The map can be scrolled from the keyboard once it has the focus.
    setFocusPolicy(Qt::StrongFocus);

    hint_ = new QLabel("This map knows nothing yet. To begin:\n\n"
                       "import a turn report (File > Import HTML),\n"
                       "import a folder of reports (File > Batch Import HTML),\n"
                       "or open a map (File > Open).",
                       this);
    hint_->setObjectName("lblEmptyMapHint");
    hint_->setTextFormat(Qt::PlainText);
    hint_->setAlignment(Qt::AlignCenter);
    hint_->setStyleSheet("QLabel { color: #d8d8d8; background: rgba(0, 0, 0, 150); border-radius: 8px;"
                         " padding: 14px 20px; }");
    // Painting on the empty map goes on as though the hint were not there.
    hint_->setAttribute(Qt::WA_TransparentForMouseEvents);
    hint_->hide();
}

void MapPicture::clearBuffer()
{
    // Rounded up: a part of a tile at the edge still shows.
    const QSize zoomed((width() + zoom_ - 1) / zoom_, (height() + zoom_ - 1) / zoom_);
    buffer_ = QImage(zoomed.expandedTo(QSize(1, 1)), kMapPictureFormat);
    buffer_.fill(kBackground);
}

void MapPicture::setOutline(std::optional<QRect> tile)
{
    if (tile == outline_)
        return;
    if (outline_)
        update(*outline_);
    outline_ = tile;
    if (outline_)
        update(*outline_);
}

void MapPicture::setHintVisible(bool visible)
{
    if (visible == hint_->isVisible())
        return;
    hint_->setVisible(visible);
    placeHint();
}

void MapPicture::placeHint()
{
    hint_->setMaximumWidth(std::max(width() - 24, 100));
    hint_->adjustSize();
    hint_->move((width() - hint_->width()) / 2, (height() - hint_->height()) / 2);
}

void MapPicture::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    painter.fillRect(event->rect(), kBackground);
    // Tiles are pixel art: zoomed, or on a high-density screen, they grow
    // without blur.
    paintZoomed(painter, buffer_, zoom_, event->rect());
    if (outline_)
        paintSectorOutline(painter, *outline_);
}

void MapPicture::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    placeHint();
    emit resized();
}

void MapPicture::wheelEvent(QWheelEvent *event)
{
    if (!(event->modifiers() & Qt::ControlModifier)) {
        event->ignore();
        return;
    }
    // A touchpad turns the wheel in small parts of a notch.
    wheelAngle_ += event->angleDelta().y();
    const int steps = wheelAngle_ / kWheelNotch;
    wheelAngle_ -= steps * kWheelNotch;
    if (steps != 0)
        emit zoomWheel(steps, event->position());
    event->accept();
}

void MapPicture::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Left:
        emit scrollRequested(-1, 0, false);
        break;
    case Qt::Key_Right:
        emit scrollRequested(1, 0, false);
        break;
    case Qt::Key_Up:
        emit scrollRequested(0, -1, false);
        break;
    case Qt::Key_Down:
        emit scrollRequested(0, 1, false);
        break;
    case Qt::Key_PageUp:
        emit scrollRequested(0, -1, true);
        break;
    case Qt::Key_PageDown:
        emit scrollRequested(0, 1, true);
        break;
    case Qt::Key_Home:
        emit scrollRequested(-1, 0, true);
        break;
    case Qt::Key_End:
        emit scrollRequested(1, 0, true);
        break;
    default:
        QWidget::keyPressEvent(event);
        return;
    }
}

void MapPicture::mouseMoveEvent(QMouseEvent *event)
{
    emit pointerMoved(event->position().toPoint(), event->buttons() != Qt::NoButton);
}

void MapPicture::mousePressEvent(QMouseEvent *event)
{
    const int button = event->button() == Qt::LeftButton ? 1 : event->button() == Qt::RightButton ? 2 : 0;
    emit pressed(button, event->position().toPoint());
}

void MapPicture::mouseReleaseEvent(QMouseEvent *event)
{
    // A click ends where it began: releasing outside the picture is no click.
    if (rect().contains(event->position().toPoint()))
        emit clicked();
}

} // namespace wayscribe
