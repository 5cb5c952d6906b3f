#include "platform/qt/FrontEnd.h"

namespace fisc {

int RunWindow(int, char**, const WindowOptions&) { return 1; }

}  // namespace fisc
