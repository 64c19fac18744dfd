# The libraries of others that the program needs. For Windows the headers that Debian has for Linux are linked into a
# folder of their own, since beside them lie those of the system.
function(prnprop_header_library target folder)
  file(CREATE_LINK /usr/include/${folder} ${PROJECT_BINARY_DIR}/headers/${folder} SYMBOLIC)
  add_library(${target} INTERFACE IMPORTED GLOBAL)
  target_include_directories(${target} SYSTEM INTERFACE ${PROJECT_BINARY_DIR}/headers)
endfunction()

if(WIN32)
  file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/headers)
  prnprop_header_library(CLI11::CLI11 CLI)
  prnprop_header_library(nlohmann_json::nlohmann_json nlohmann)
else()
  find_package(CLI11 REQUIRED GLOBAL)
  find_package(nlohmann_json REQUIRED GLOBAL)
endif()
