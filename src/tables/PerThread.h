#pragma once

namespace ORXKMPrintProp {

/// @file
/// Values of which each thread that uses controls has one of its own:
///
///     extern thread_local PerThread<Text> gErrorText;
///     thread_local PerThread<Text> gErrorText = NewPerThread<Text>();
///
/// They end with their thread. Not so on Windows, where a library may go ahead of the threads that have used it, and
/// its code with it: there a few empty values are left behind, once `ReleaseSharedValues` has emptied them.

#ifdef _WIN32
template <class T>
using PerThread = T&;
template <class T>
T& NewPerThread() {
  return *new T();
}
#else
template <class T>
using PerThread = T;
template <class T>
T NewPerThread() {
  return T();
}
#endif

}  // namespace ORXKMPrintProp
