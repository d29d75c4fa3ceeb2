#include "toolkit/control.h"

namespace toolkit {

Control::Control(ControlSite& site, const Design& design)
    : Component(site, design.name),
      AccessibleName(design.accessibleName),
      Left(*this, design.left),
      Top(*this, design.top),
      Width(*this, design.width),
      Height(*this, design.height),
      Visible(*this, design.visible),
      FontName(*this, "Times New Roman"),
      FontSize(*this, 8.25F) {
  site.controls.push_back(this);
}

}  // namespace toolkit
