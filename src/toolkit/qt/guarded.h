#pragma once

#include <QMetaObject>
#include <QObject>
#include <type_traits>
#include <utility>

#include "framework/events/run_loop.h"

namespace toolkit::qt {

/// Calls the work with what was told, or without it where it takes nothing.
template <class Work, class... Told>
void Call(const Work& work, const Told&... told) {
  if constexpr (std::is_invocable_v<const Work&, const Told&...>) {
    work(told...);
  } else {
    work();
  }
}

/// Calls the work for each signal, as an event of ours: with what the signal tells, or without it.
template <class Sender, class Signal, class Work>
void Connect(Sender* sender, Signal signal, QObject* context, Work work) {
  QObject::connect(sender, signal, context, [work = std::move(work)](const auto&... told) {
    framework::_RunEvent([&] { Call(work, told...); });
  });
}

/// Calls the work once the running event is over, as an event of ours. It may be asked for from any
/// thread, and runs on that of the context.
template <class Work>
void RunLater(QObject* context, Work work) {
  QMetaObject::invokeMethod(
      context, [work = std::move(work)] { framework::_RunEvent(work); }, Qt::QueuedConnection);
}

}  // namespace toolkit::qt
