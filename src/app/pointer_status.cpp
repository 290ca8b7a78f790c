#include "app/pointer_status.h"

#include <QColor>
#include <cmath>

#include "editing/drag_readout.h"
#include "editing/scene_mapping.h"

namespace orbelle::app {
namespace {

QLabel* AddField(QStatusBar& line, const char* name, int width) {
    auto* field = new QLabel;
    field->setObjectName(name);
    field->setMinimumWidth(width);
    field->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    field->setContentsMargins(0, 0, 12, 0);
    line.addPermanentWidget(field);
    return field;
}

}  // namespace

PointerStatus::PointerStatus(QStatusBar& line)
    : drag_(AddField(line, "DragReadout", 160)),
      position_(AddField(line, "PointerPosition", 96)),
      color_(AddField(line, "PointerColor", 96)),
      zoom_(AddField(line, "Zoom", 64)) {}

void PointerStatus::ShowPointer(const editing::Editor& editor, float x, float y) {
    pointer_ = {x, y};
    Refresh(editor);
}

void PointerStatus::Refresh(const editing::Editor& editor) {
    if (!pointer_ || !editor.DocumentExists)
        return;
    const graphics::PointF page =
        ScreenToPage(editing::MappingOf(editor), static_cast<float>(pointer_->x()),
                     static_cast<float>(pointer_->y()));
    const int column = graphics::RoundToEven(page.X), row = graphics::RoundToEven(page.Y);
    position_->setText(QString("%1, %2").arg(column).arg(row));
    const auto color = editor.Canvas.GetPixel(column, row);
    color_->setText(color ? QColor::fromRgba(*color).name(QColor::HexArgb).toUpper() : QString());
}

void PointerStatus::ClearPointer() {
    pointer_.reset();
    position_->clear();
    color_->clear();
}

void PointerStatus::ShowZoom(double zoom) {
    zoom_->setText(zoom > 0 ? QString::number(std::lround(zoom * 100)) + "%" : QString());
}

void PointerStatus::ShowDrag(const editing::Editor& editor) {
    const auto readout = ReadoutOf(editor);
    if (!readout)
        return drag_->clear();
    const auto& [x, y, width, height] = readout->Area;
    drag_->setText(readout->IsMove ? QString("at %1, %2, moved by %3, %4")
                                         .arg(x)
                                         .arg(y)
                                         .arg(readout->MovedX)
                                         .arg(readout->MovedY)
                                   : QString("%1 %2 %3 at %4, %5")
                                         .arg(width)
                                         .arg(QChar(0x00D7))
                                         .arg(height)
                                         .arg(x)
                                         .arg(y));
}

}  // namespace orbelle::app
