#include "view/ui/minimap_widget.h"

#include "view/minimap_geometry.h"

#include <QMouseEvent>
#include <QPainter>

namespace wayscribe {

MinimapWidget::MinimapWidget(QWidget *parent) : QWidget(parent)
{
    setObjectName("MiniMap");
    setAccessibleName("Minimap");
    setToolTip("The whole world; click to move the map there");
    setMouseTracking(true);
    setFixedSize(sizeHint());
    setCursor(Qt::CrossCursor);
}

QSize MinimapWidget::sizeHint() const
{
    return {kMinimapSize * kZoom, kMinimapSize * kZoom};
}

void MinimapWidget::setImage(const QImage &image)
{
    image_ = image;
    update();
}

void MinimapWidget::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
    painter.drawImage(rect(), image_);
}

void MinimapWidget::mousePressEvent(QMouseEvent *event)
{
    const QPointF p = event->position() / kZoom;
    emit clicked(p.x(), p.y());
}

void MinimapWidget::mouseMoveEvent(QMouseEvent *event)
{
    const QPointF p = event->position() / kZoom;
    emit pointerMoved(p.x(), p.y());
}

} // namespace wayscribe
