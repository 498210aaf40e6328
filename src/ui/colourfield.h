#pragma once
// A colour field of the colour dialog: shows one colour; a double click asks for another, a
// right click passes it on.

#include "core/colour.h"

#include <QFrame>

namespace tf::ui {

class ColourField : public QFrame {
    Q_OBJECT
public:
    explicit ColourField(const QString &text = QString(), QWidget *parent = nullptr);
    void setColour(ColorLong c);
    ColorLong colour() const { return m_colour; }
    QSize sizeHint() const override { return QSize(44, 28); }

signals:
    void doubleClicked();
    void rightClicked();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;

private:
    QString m_text;
    ColorLong m_colour = 0;
};

} // namespace tf::ui
