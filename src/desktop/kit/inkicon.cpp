#include "desktop/kit/inkicon.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

namespace vernacle {

namespace {

// The colour in the drawings that stands for the desktop's text colour.
constexpr const char* kInk = "#101010";

class InkIconEngine : public QIconEngine {
public:
    explicit InkIconEngine(const QByteArray& svg) : svg_(svg) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode,
               QIcon::State /*state*/) override {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const QColor ink = QGuiApplication::palette().color(group, QPalette::ButtonText);
        QByteArray svg = svg_;
        svg.replace(kInk, ink.name().toLatin1());
        painter->setOpacity(mode == QIcon::Disabled ? 0.5 : 1);
        QSvgRenderer(svg).render(painter, QRectF(rect));
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap picture(size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return picture;
    }

    QIconEngine* clone() const override { return new InkIconEngine(svg_); }

private:
    QByteArray svg_;
};

} // namespace

QIcon InkIcon(const char* name) {
    QFile file(QStringLiteral(":/icons/") + QLatin1String(name) + QStringLiteral(".svg"));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    return QIcon(new InkIconEngine(file.readAll()));
}

} // namespace vernacle
