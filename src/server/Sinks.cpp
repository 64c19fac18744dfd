#include "server/Sinks.h"

#include <olectl.h>

#include <algorithm>
#include <cstddef>
#include <exception>
#include <utility>

#include "ORXKMPrintProp.h"
#include "automation/Enumerator.h"
#include "automation/Failures.h"

namespace ORXKMPrintProp::server {

using namespace automation;

namespace {

struct ConnectionItem {
  ComRef<IUnknown> sink;
  DWORD cookie;
};
CONNECTDATA CopyOf(const ConnectionItem& item) { return {ComRef(item.sink).Detach(), item.cookie}; }
IConnectionPoint* CopyOf(const ComRef<IConnectionPoint>& point) { return ComRef(point).Detach(); }

/// Items that are known from the start, for an enumerator.
template <class Item, class Given>
struct ListSource {
  std::vector<Item> items;

  std::size_t Count() const { return items.size(); }
  void Give(std::size_t place, Given& given) const { given = CopyOf(items[place]); }
  static void TakeBack(Given&) {}  // none of them fails
};

using ConnectionSource = ListSource<ConnectionItem, CONNECTDATA>;
using PointSource = ListSource<ComRef<IConnectionPoint>, IConnectionPoint*>;

}  // namespace

void Sinks::Close() {
  container_ = nullptr;
  // Their ends may call back.
  const std::vector<Connection> ended = std::exchange(connections_, {});
}

void Sinks::Raise(DISPID event, VARIANT* arguments, UINT count) {
  const ComRef<IConnectionPoint> held(this);
  const std::vector<Connection> connections = connections_;
  std::exception_ptr failure;
  for (const Connection& connection : connections) {
    if (!IsConnected(connection.cookie)) continue;
    DISPPARAMS parameters{arguments, nullptr, count, 0};
    EXCEPINFO exception{};
    const HRESULT result = connection.sink->Invoke(event, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &parameters,
                                                   nullptr, &exception, nullptr);
    // A sink need not handle every event.
    if (result == DISP_E_MEMBERNOTFOUND) continue;
    try {
      CheckCall(result, exception, u"a handler of an event");
    } catch (...) {
      if (!failure) failure = std::current_exception();
    }
  }
  if (failure) std::rethrow_exception(failure);
}

bool Sinks::IsConnected(DWORD cookie) const {
  return std::any_of(connections_.begin(), connections_.end(),
                     [cookie](const Connection& connection) { return connection.cookie == cookie; });
}

STDMETHODIMP Sinks::GetConnectionInterface(IID* id) {
  if (!id) return E_POINTER;
  *id = __uuidof(__ORXQueryPrnProp);
  return S_OK;
}

STDMETHODIMP Sinks::GetConnectionPointContainer(IConnectionPointContainer** container) {
  if (!container) return E_POINTER;
  *container = ComRef(container_).Detach();
  return *container ? S_OK : E_UNEXPECTED;
}

STDMETHODIMP Sinks::Advise(IUnknown* sink, DWORD* cookie) {
  if (!sink || !cookie) return E_POINTER;
  *cookie = 0;
  ComRef<IDispatch> connected;
  if (FAILED(sink->QueryInterface(__uuidof(__ORXQueryPrnProp), reinterpret_cast<void**>(connected.Out())))) {
    connected = ComRef(sink).As<IDispatch>();
  }
  if (!connected || !container_) return CONNECT_E_CANNOTCONNECT;
  try {
    connections_.push_back({++lastCookie_, std::move(connected)});
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  }
  *cookie = lastCookie_;
  return S_OK;
}

STDMETHODIMP Sinks::Unadvise(DWORD cookie) {
  const auto found = std::find_if(connections_.begin(), connections_.end(),
                                  [cookie](const Connection& connection) { return connection.cookie == cookie; });
  if (found == connections_.end()) return CONNECT_E_NOCONNECTION;
  // Its end may call back.
  const Connection ended = std::move(*found);
  connections_.erase(found);
  return S_OK;
}

STDMETHODIMP Sinks::EnumConnections(IEnumConnections** connections) {
  if (!connections) return E_POINTER;
  *connections = nullptr;
  try {
    // The sinks may connect and disconnect meanwhile.
    const std::vector<Connection> known = connections_;
    std::vector<ConnectionItem> items;
    for (const Connection& connection : known) items.push_back({connection.sink.As<IUnknown>(), connection.cookie});
    *connections = new Enumerator<IEnumConnections, CONNECTDATA, ConnectionSource>({std::move(items)});
    return S_OK;
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  }
}

ComRef<IEnumConnectionPoints> EnumOf(ComRef<IConnectionPoint> point) {
  PointSource points{{std::move(point)}};
  return ComRef<IEnumConnectionPoints>::Taken(
      new Enumerator<IEnumConnectionPoints, IConnectionPoint*, PointSource>(std::move(points)));
}

}  // namespace ORXKMPrintProp::server
