#pragma once

#include <QImage>
#include <QWidget>

namespace wayscribe {

// The map picture: shows its back buffer, which the map drawing fills, and
// reports the sector under the pointer.
class MapPicture : public QWidget {
    Q_OBJECT
public:
    explicit MapPicture(QWidget *parent = nullptr);

    // The persistent back buffer, in logical pixels of the widget's size.
    QImage &backBuffer() { return buffer_; }
    // Clears the buffer to the widget's current size.
    void clearBuffer();

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

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QImage buffer_;
};

} // namespace wayscribe
