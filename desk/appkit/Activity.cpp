// Activities on the desk: the machine counts them.
#include "Orvane/platform/appkit/Activity.hpp"

#include "desk/machine/Machine.hpp"

namespace orvane::appkit {

struct Activity::Implementation {};

Activity::Activity(std::string_view /*reason*/) {
  ++desk::Machine::current().application.activityCount;
}

Activity::~Activity() {
  --desk::Machine::current().application.activityCount;
}

}  // namespace orvane::appkit
