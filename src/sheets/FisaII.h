#pragma once
// The employee screen: identifies one employee and chooses the sheet to work on.
#include "platform/Form.h"

namespace fisc {

class FisaII : public Form {
 public:
  explicit FisaII(Desktop& desktop);

  Control& AnFisc;
  Control& Option1;
  Control& Option2;
  Control& JudS;
  Control& Frame1;

  Form* Intro = nullptr;  // shown again when this screen closes
};

}  // namespace fisc
