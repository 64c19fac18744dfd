#pragma once

#include <ocidl.h>

#include <vector>

#include "automation/ComObject.h"
#include "automation/ComRef.h"

namespace ORXKMPrintProp::server {

/// The control's one connection point, by which any number of sinks hear its events. It may outlive the control, and
/// then takes no more sinks.
class Sinks final : public automation::ComObject<IConnectionPoint> {
 public:
  explicit Sinks(IConnectionPointContainer& container) : container_(&container) {}
  /// The control ends.
  void Close();

  /// Tells all sinks in the order of connecting; those that have gone by their turn hear nothing.
  /// @throws automation::HostFailure the first failure of a sink, when all have been told.
  void Raise(DISPID event, VARIANT* arguments, UINT count);

  STDMETHODIMP GetConnectionInterface(IID* id) override;
  STDMETHODIMP GetConnectionPointContainer(IConnectionPointContainer** container) override;
  STDMETHODIMP Advise(IUnknown* sink, DWORD* cookie) override;
  STDMETHODIMP Unadvise(DWORD cookie) override;
  STDMETHODIMP EnumConnections(IEnumConnections** connections) override;

 private:
  struct Connection {
    DWORD cookie;
    automation::ComRef<IDispatch> sink;
  };
  bool IsConnected(DWORD cookie) const;

  IConnectionPointContainer* container_;
  std::vector<Connection> connections_;
  DWORD lastCookie_ = 0;
};

/// The enumerator of a container with one connection point.
automation::ComRef<IEnumConnectionPoints> EnumOf(automation::ComRef<IConnectionPoint> point);

}  // namespace ORXKMPrintProp::server
