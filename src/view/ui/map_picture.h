#pragma once

#include <QImage>
#include <QWidget>

#include <optional>

class QLabel;

namespace wayscribe {

// The map picture: shows its back buffer, which the map drawing fills,
// enlarged by the zoom, with the selected sector outlined over it, and
// reports the sector under the pointer.
class MapPicture : public QWidget {
    Q_OBJECT
public:
    explicit MapPicture(QWidget *parent = nullptr);

    // The persistent back buffer: 16 pixels a sector, the widget's size
    // divided by the zoom.
    QImage &backBuffer() { return buffer_; }
    // Clears the buffer to the widget's current size at the zoom.
    void clearBuffer();
    // Screen pixels a buffer pixel takes across; the buffer is cleared next.
    void setZoom(int zoom) { zoom_ = zoom; }
    // The selected sector's tile in screen pixels, outlined over the map.
    void setOutline(std::optional<QRect> tile);
    // A hint over an empty map of how to begin; it lets every click through.
    void setHintVisible(bool visible);

    QSize sizeHint() const override { return {800, 600}; }
    QSize minimumSizeHint() const override { return {160, 160}; }

signals:
    void resized();
    // The pointer moved to `pixel`; `buttonHeld` while a mouse button is down.
    void pointerMoved(QPoint pixel, bool buttonHeld);
    // A button went down at `pixel`: 1 the left button, 2 the right, 0 any other.
    void pressed(int button, QPoint pixel);
    // The button that went down came up: a click.
    void clicked();
    // Arrow and page keys: how far to move the view, in sectors, or in
    // half views for the page keys.
    void scrollRequested(int sectorsX, int sectorsY, bool byHalfViews);
    // The wheel turned with Ctrl held: `steps` notches, away from the person
    // positive, with the pointer at `pixel`.
    void zoomWheel(int steps, QPointF pixel);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void placeHint();

    QImage buffer_;
    int zoom_ = 1;
    std::optional<QRect> outline_;
    QLabel *hint_ = nullptr;
    int wheelAngle_ = 0; // eighths of a degree not yet a whole notch
};

} // namespace wayscribe
