# What every target of ours is built with, as one interface target and two functions.
add_library(varnel_options INTERFACE)
target_compile_options(varnel_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wold-style-cast -Wcast-qual
  -Woverloaded-virtual -Wconversion -Wno-sign-conversion -Wdouble-promotion -Wno-error=deprecated-declarations)
if(VARNEL_WARNINGS_AS_ERRORS)
  target_compile_options(varnel_options INTERFACE -Werror)
endif()
if(VARNEL_CUT_PATHS)
  target_compile_options(varnel_options INTERFACE -ffile-prefix-map=${CMAKE_SOURCE_DIR}=.)
endif()
if(VARNEL_SANITIZE)
  target_compile_options(varnel_options INTERFACE -fsanitize=${VARNEL_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  target_link_options(varnel_options INTERFACE -fsanitize=${VARNEL_SANITIZE})
endif()
target_include_directories(varnel_options INTERFACE ${CMAKE_SOURCE_DIR})
# Nothing that Qt 6.4 calls deprecated, now or for later, so that newer ones build it, too. Those know the second name
# and ask for what 6.4 had dropped by then, not for what they drop themselves.
target_compile_definitions(varnel_options INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_KEYWORDS
  QT_DISABLE_DEPRECATED_BEFORE=0x070000 QT_DISABLE_DEPRECATED_UP_TO=0x060400)

# varnel_library(NAME SOURCES ... LINKS ...): a static library; LINKS are public.
function(varnel_library name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
  add_library(${name} STATIC ${arg_SOURCES})
  target_link_libraries(${name} PUBLIC ${arg_LINKS} PRIVATE varnel_options)
  target_include_directories(${name} PUBLIC ${CMAKE_SOURCE_DIR})
endfunction()

# varnel_program(NAME SOURCES ... LINKS ...)
function(varnel_program name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
  add_executable(${name} ${arg_SOURCES})
  target_link_libraries(${name} PRIVATE ${arg_LINKS} varnel_options)
endfunction()

# Contraction to fused multiply-add would change the coordinates' last bits from machine to machine.
function(varnel_exact_arithmetic name)
  target_compile_options(${name} PRIVATE -ffp-contract=off)
endfunction()

# varnel_dialogs(NAME SOURCES ... LINKS ...): a library of widgets with its .ui files. Their headers are
# made by commands that name what they write, as AUTOUIC's are not: so one run of the build is enough.
function(varnel_dialogs name)
  cmake_parse_arguments(arg "" "" "SOURCES;LINKS" ${ARGN})
  set(forms ${arg_SOURCES})
  list(FILTER forms INCLUDE REGEX "[.]ui$")
  list(FILTER arg_SOURCES EXCLUDE REGEX "[.]ui$")
  qt_wrap_ui(headers ${forms})
  varnel_library(${name} SOURCES ${arg_SOURCES} ${headers} LINKS ${arg_LINKS})
  target_link_libraries(${name} PUBLIC Qt6::Widgets)
  target_include_directories(${name} PRIVATE ${CMAKE_CURRENT_BINARY_DIR})
  # What AUTOUIC once left in an older build folder would be found first.
  file(GLOB stale ${CMAKE_CURRENT_BINARY_DIR}/${name}_autogen/include/ui_*.h)
  if(stale)
    file(REMOVE ${stale})
  endif()
  set_target_properties(${name} PROPERTIES AUTOMOC ON)
endfunction()

# varnel_without(NAME OTHER ...): stops where NAME, or whatever it links, links one of the others.
function(varnel_without name)
  set(waiting ${name})
  set(seen "")
  while(waiting)
    list(POP_FRONT waiting one)
    string(REGEX REPLACE "^[$]<LINK_ONLY:(.*)>$" "\\1" one "${one}")
    if(one IN_LIST seen)
      continue()
    endif()
    list(APPEND seen ${one})
    if(one IN_LIST ARGN)
      message(FATAL_ERROR "${name} links ${one}")
    endif()
    # What Qt's targets link is not ours to judge.
    if(TARGET ${one} AND NOT one MATCHES "::")
      get_target_property(links ${one} INTERFACE_LINK_LIBRARIES)
      if(links)
        list(APPEND waiting ${links})
      endif()
    endif()
  endwhile()
endfunction()
