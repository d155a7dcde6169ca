#pragma once

#include <QImage>
#include <QWidget>

namespace wayscribe {

// Shows the minimap picture, enlarged by a whole factor so that it can be
// read on today's screens, and reports clicks and pointer moves in minimap
// pixels (fractions included), as the minimap rules expect them.
class MinimapWidget : public QWidget {
    Q_OBJECT
public:
    static constexpr int kZoom = 2;

    explicit MinimapWidget(QWidget *parent = nullptr);
    void setImage(const QImage &image);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    void clicked(double x, double y);
    void pointerMoved(double x, double y);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;

private:
    QImage image_;
};

} // namespace wayscribe
