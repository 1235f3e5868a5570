#pragma once

#include "framework/application/application.h"

namespace shell {

/// The program's application object. It has no logic of its own and handles none of its events.
class App : public framework::Application {
 public:
  virtual void Constructor() {}
};

}  // namespace shell
