#include "views/win32/Styled.h"

namespace ORXKMPrintProp::win32 {

HMODULE OwnModule() {
  HMODULE module = nullptr;
  ::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<const wchar_t*>(&OwnModule), &module);
  return module;
}

Styled::Styled() {
  ACTCTXW wanted{};
  wanted.cbSize = sizeof wanted;
  wanted.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
  wanted.hModule = OwnModule();
  wanted.lpResourceName = MAKEINTRESOURCEW(2);  // where the system looks for that of a library
  context_ = ::CreateActCtxW(&wanted);
  if (context_ != INVALID_HANDLE_VALUE) ::ActivateActCtx(context_, &cookie_);
}

Styled::~Styled() {
  if (context_ == INVALID_HANDLE_VALUE) return;
  if (cookie_) ::DeactivateActCtx(0, cookie_);
  ::ReleaseActCtx(context_);
}

}  // namespace ORXKMPrintProp::win32
