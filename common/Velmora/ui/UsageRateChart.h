#pragma once
// A small drawn gauge: a ring that shows a percentage, with the number in its centre.
#include <QLabel>

class QPainter;

namespace velmora {

class CUsageRateChart : public QLabel {
    Q_OBJECT
public:
    explicit CUsageRateChart(QWidget* parent);

    // Clamps `rate` to 0..100, keeps it and repaints. Not a number changes nothing.
    void setUsageRate(double rate);
    double usageRate() const { return m_dUsageRate; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    // A ring segment of `thickness` inside the circle of `radius` round the painter's origin.
    static void drawRing(QPainter& painter, int radius, int start, int span, int thickness, QRgb colour);

    double m_dUsageRate = 0.0;
    bool m_bNanLogged = false;
};

} // namespace velmora
