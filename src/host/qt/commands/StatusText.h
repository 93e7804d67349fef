// A status pane's text, with one stretch of it in a colour of its own.
#pragma once

#include <QColor>
#include <QWidget>

class StatusText : public QWidget {
public:
    // `width`: of the pane, in pixels; 0 for one that takes what room there is.
    StatusText(int width, QWidget* parent);

    void Show(const QString& left, const QString& hot, const QString& right, QColor colour);

protected:
    void paintEvent(QPaintEvent* event) override;
    QSize sizeHint() const override;

private:
    QColor Readable() const;

    int width_;
    QString left_;
    QString hot_;
    QString right_;
    QColor colour_;
};
