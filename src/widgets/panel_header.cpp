#include "widgets/panel_header.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>

#include "widgets/theme.h"

namespace orbelle::widgets {

namespace {

constexpr int kChevronRoom = 28;  // at the left

}  // namespace

PanelHeader::PanelHeader(const QString& title, QWidget* parent) : QAbstractButton(parent) {
    setText(title);
    setCheckable(true);
    setChecked(true);
    QFont font = ChromeFont(kNormalText);
    font.setWeight(QFont::DemiBold);
    setFont(font);
    setFixedHeight(HeightFor(kHeaderHeight));
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    // A click leaves the keyboard with the picture that is being edited.
    setFocusPolicy(Qt::TabFocus);
    connect(this, &QAbstractButton::clicked, this, [this] { emit Clicked(IsClosed()); });
}

bool PanelHeader::IsClosed() const {
    return !isChecked();
}

void PanelHeader::SetClosed(bool closed) {
    setChecked(!closed);
}

void PanelHeader::SetTools(QWidget& tools) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addSpacing(sizeHint().width());
    row->addStretch();
    row->addWidget(&tools);
    row->addSpacing(kSpace);
    connect(this, &QAbstractButton::toggled, &tools, &QWidget::setVisible);
}

QSize PanelHeader::sizeHint() const {
    return {kChevronRoom + fontMetrics().horizontalAdvance(text()) + kSpace,
            HeightFor(kHeaderHeight)};
}

void PanelHeader::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QAbstractButton::keyPressEvent(event);
}

void PanelHeader::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), BandColor());
    painter.fillRect(0, 0, width(), 1, HairlineColor());
    painter.setPen(isEnabled() ? CurrentTheme().Text : DisabledColor());
    const QRect room =
        QStyle::visualRect(layoutDirection(), rect(), rect().adjusted(kChevronRoom, 0, -kSpace, 0));
    painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeft,
                     fontMetrics().elidedText(text(), Qt::ElideRight, room.width()));

    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(underMouse() ? CurrentTheme().Accent : painter.pen().color(), 1.5));
    painter.save();
    const int fromLeft = isRightToLeft() ? width() - kChevronRoom / 2 : kChevronRoom / 2;
    painter.translate(fromLeft, height() / 2.0);
    const double turned = IsClosed() ? turning_.Share() : 1 - turning_.Share();
    painter.rotate((isRightToLeft() ? 90 : -90) * turned);
    DrawChevron(painter, {0, 0});
    painter.restore();

    if (hasFocus()) {
        painter.setPen(QPen(CurrentTheme().Accent, 1));
        painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
    }
}

}  // namespace orbelle::widgets
