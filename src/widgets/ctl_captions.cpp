#include "widgets/ctl_captions.h"

#include <QPainter>

#include "widgets/accessible_roles.h"
#include "widgets/chrome.h"
#include "widgets/ctl_image_store.h"

namespace orbelle::widgets {

namespace {

constexpr QColor kCaptionColor(128, 128, 128);
constexpr QSize kPictureSize(32, 32);
constexpr int kGap = 8;
constexpr int kUsualWidth = 200;

}  // namespace

CtlCaptions::CtlCaptions(const QString& caption, QWidget* parent) : QWidget(parent) {
    InstallAccessibleRoles();
    setFont(ChromeFont(8.25));
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
    SetCaption(caption);
}

QString CtlCaptions::Caption() const {
    return caption_;
}

void CtlCaptions::SetCaption(const QString& caption) {
    caption_ = caption;
    setAccessibleName(caption);
    updateGeometry();
    update();
}

void CtlCaptions::SetPicture(const QString& artwork) {
    picture_ = artwork;
    updateGeometry();
    update();
}

int CtlCaptions::TextLeft() const {
    return picture_.isEmpty() ? 0 : kPictureSize.width() + kGap;
}

QSize CtlCaptions::sizeHint() const {
    return {kUsualWidth, heightForWidth(kUsualWidth)};
}

int CtlCaptions::heightForWidth(int width) const {
    const QRect room(0, 0, qMax(width - TextLeft(), 1), QWIDGETSIZE_MAX);
    const int text = fontMetrics().boundingRect(room, Qt::TextWordWrap, caption_).height();
    return picture_.isEmpty() ? text : qMax(text, kPictureSize.height());
}

void CtlCaptions::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    CtlImageStore(picture_).Drawing(painter, QRect(QPoint(0, 0), kPictureSize), 1);
    painter.setPen(kCaptionColor);
    painter.drawText(rect().adjusted(TextLeft(), 0, 0, 0), Qt::TextWordWrap, caption_);
}

}  // namespace orbelle::widgets
