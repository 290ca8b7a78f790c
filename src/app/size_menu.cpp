#include "app/size_menu.h"

#include <QMenu>

#include "app/ask_commands.h"
#include "editing/size_commands.h"
#include "widgets/words.h"

namespace orbelle::app {
namespace {

using document::Family;
using editing::Editor;

bool CanHaveArtwork(int size) {
    return size >= document::kMinArtworkSize && size <= document::kMaxArtworkSize;
}

void DrawByHand(const WindowContext& context, int size) {
    const bool isThere = context.Commands.Editor().Document.ArtworkOf(size) != nullptr;
    if (context.Commands.Run([size](Editor& editor) { EditSize(editor, size); }) && !isThere)
        context.User.ShowStatus(
            Words::tr("%1 has a picture of its own now. Undo takes that back, and so does "
                      "Back to Master's in its menu.")
                .arg(QString::fromStdString(document::NameOfSize(size)))
                .toStdString());
}

void GoToMaster(const WindowContext& context) {
    context.Commands.Run([](Editor& editor) { GoToPage(editor, Family::kMaster); });
}

}  // namespace

void ClickSize(const WindowContext& context, int size) {
    if (size == context.Commands.Editor().Document.EditedSize)
        GoToMaster(context);
    else
        DrawByHand(context, size);
}

void GoToFinding(const WindowContext& context, const formats::Finding& finding) {
    const bool isOfMaster = finding.Kind == formats::Fault::Clipped &&
                            !context.Commands.Editor().Document.ArtworkOf(finding.Size);
    if (isOfMaster || !CanHaveArtwork(finding.Size))
        GoToMaster(context);
    else
        DrawByHand(context, finding.Size);
}

void PopUpSizeMenu(const WindowContext& context, int size, const std::vector<int>& sizes,
                   QWidget& parent, const QPoint& at) {
    auto* menu = new QMenu(&parent);
    menu->setObjectName("SizeMenu");
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(Words::tr("&Draw by Hand"), &parent,
                    [context, size] { DrawByHand(context, size); })
        ->setEnabled(CanHaveArtwork(size));

    menu->addAction(Words::tr("&Suggest..."), &parent,
                    [context, size] { AskSuggest(context, size); })
        ->setEnabled(CanHaveArtwork(size));
    QMenu* copies = menu->addMenu(Words::tr("&Copy to Size..."));
    for (const int to : sizes) {
        if (to == size || !CanHaveArtwork(to))
            continue;
        copies->addAction(
            QString::fromStdString(document::NameOfSize(to)), &parent, [context, size, to] {
                context.Commands.Run([size, to](Editor& editor) { CopyToSize(editor, size, to); });
            });
    }
    menu->addSeparator();
    menu->addAction(Words::tr("&Back to Master's"), &parent,
                    [context, size] {
                        context.Commands.Run([size](Editor& editor) { DropArtwork(editor, size); });
                    })
        ->setEnabled(context.Commands.Editor().Document.ArtworkOf(size));
    menu->popup(at);
}

}  // namespace orbelle::app
