# zolto_warnings(target): the warnings that every target of our own is compiled with.
# -Wrestrict is off: GCC 12 reports it for every std::string that is put together with operator+.
function(zolto_warnings target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor
                         -Woverloaded-virtual $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
                         $<$<BOOL:${ZOLTO_WERROR}>:-Werror>)
endfunction()

# zolto_floor(name DEPENDS floor...): one static library for the folder src/<name>.
# Its headers are reached as "<name>/Header.h", and only by targets that link it: every floor has
# an include root of its own (a folder with one link), so an include of a higher floor does not compile.
function(zolto_floor name)
  cmake_parse_arguments(arg "" "FOLDER" "DEPENDS" ${ARGN})
  if(NOT arg_FOLDER)
    set(arg_FOLDER ${name})
  endif()
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/src/${arg_FOLDER}/*.cpp
       ${CMAKE_SOURCE_DIR}/src/${arg_FOLDER}/*.h)
  add_library(${name} STATIC ${sources})
  set(root ${CMAKE_BINARY_DIR}/include/${name})
  get_filename_component(parent ${root}/${arg_FOLDER} DIRECTORY)
  file(MAKE_DIRECTORY ${parent})
  file(CREATE_LINK ${CMAKE_SOURCE_DIR}/src/${arg_FOLDER} ${root}/${arg_FOLDER} SYMBOLIC)
  target_include_directories(${name} PUBLIC ${root})
  target_link_libraries(${name} PUBLIC ${arg_DEPENDS})
  set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX)
  zolto_warnings(${name})
endfunction()

# zolto_room(floor name DEPENDS ...): the folder src/<floor>/<name> as a target of its own (floor host/qt, name view:
# host_qt_view), which sees only the rooms that it names. The target of the floor itself collects its rooms.
function(zolto_room floor name)
  cmake_parse_arguments(arg "" "" "DEPENDS" ${ARGN})
  string(REPLACE "/" "_" parent ${floor})
  zolto_floor(${parent}_${name} FOLDER ${floor}/${name} DEPENDS ${arg_DEPENDS})
  set_target_properties(${parent}_${name} PROPERTIES AUTOMOC ON)
  if(NOT TARGET ${parent})
    add_library(${parent} INTERFACE)
  endif()
  target_link_libraries(${parent} INTERFACE ${parent}_${name})
endfunction()
