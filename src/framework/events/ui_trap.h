#pragma once

namespace framework {

/// The first act of each user-interface operation. Raises ThreadAccessingUIException off the main
/// thread; passes as long as no application object is registered.
void _UITrap();

}  // namespace framework
