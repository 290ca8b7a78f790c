// The dialog "Suggest": what the recipes for small sizes make of an icon, side by side.
#pragma once

#include <QDialog>

#include "filters/size_recipes.h"
#include "graphics/bitmap.h"

namespace orbelle::app {

// A click on a suggestion takes it and ends the dialog; so does Return, and arrow keys go from one
// to the next.
class SuggestDialog : public QDialog {
    Q_OBJECT

public:
    // `master` is the icon's picture, `size` that of the pictures to choose from.
    SuggestDialog(const graphics::Bitmap& master, int size, QWidget* parent);

    // The one taken, when the dialog was accepted.
    filters::SizeRecipe Recipe() const { return recipe_; }

private:
    filters::SizeRecipe recipe_ = filters::SizeRecipe::Plain;
};

}  // namespace orbelle::app
