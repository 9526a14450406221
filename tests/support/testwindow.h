// A small window with one family of most kinds, and a record of the notices that it gave.
#pragma once

#include <vector>

#include "elements/button.h"
#include "elements/controls.h"
#include "elements/family.h"
#include "elements/label.h"
#include "elements/window.h"

namespace veneerer::test {

struct TestWindow : Switchboard, Window {
  TestWindow() : Window(static_cast<Switchboard&>(*this), "Form9") {
    watching = watch([this](const Change& change) {
      told.push_back({change.element.key(), change.property, change.oldValue});
    });
  }

  struct Notice {
    QString key;
    Property property;
    Value oldValue;
    bool operator==(const Notice&) const = default;
  };
  std::vector<Notice> told;
  Attachment watching;

  Single<Label> Label1{*this, "Label1"};
  Array<Label> Label2{*this, "Label2", {0, 3}};
  Array<Button> Button1{*this, "Button1", 3};
  Single<PictureBox> Picture1{*this, "Picture1"};
  Single<ComboBox> Combo1{*this, "Combo1"};
  Single<CheckBox> Check1{*this, "Check1"};
  Array<OptionButton> Option1{*this, "Option1", 3};
};

using Notices = std::vector<TestWindow::Notice>;

}  // namespace veneerer::test
