// What the controls without input are to assistive tools.
#pragma once

namespace orbelle::widgets {

// Makes balloons alerts and captions static text. Each control calls it when it is made.
void InstallAccessibleRoles();

}  // namespace orbelle::widgets
