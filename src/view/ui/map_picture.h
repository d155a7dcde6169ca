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
    // View column and row under the pointer, counted from 1; 0 when outside
    // the drawn tiles.
    void hovered(int column, int row);
    // Arrow and page keys: how far to move the view, in sectors, or in
    // half views for the page keys.
    void scrollRequested(int sectorsX, int sectorsY, bool byHalfViews);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    QImage buffer_;
};

} // namespace wayscribe
