#include "widgets/caption_text.h"

#include <QPainter>

#include "widgets/accessible_role.h"
#include "widgets/theme.h"

namespace orbelle::widgets {

namespace {

constexpr int kUsualWidth = 200;

}  // namespace

CaptionText::CaptionText(const QString& caption, QWidget* parent) : QWidget(parent) {
    InstallAccessibleRole<CaptionText, QAccessible::StaticText>();
    setFont(ChromeFont(8.25));
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    SetCaption(caption);
}

void CaptionText::SetCaption(const QString& caption) {
    caption_ = caption;
    setAccessibleName(caption);
    updateGeometry();
    update();
}

QSize CaptionText::sizeHint() const {
    return {kUsualWidth, heightForWidth(kUsualWidth)};
}

int CaptionText::heightForWidth(int width) const {
    const QRect room(0, 0, qMax(width, 1), QWIDGETSIZE_MAX);
    return fontMetrics().boundingRect(room, Qt::TextWordWrap, caption_).height();
}

void CaptionText::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(CurrentTheme().Note);
    painter.drawText(rect(), Qt::TextWordWrap, caption_);
}

}  // namespace orbelle::widgets
