# The on-disk formats: plain bytes and the standard library, no window system.
add_library(formats STATIC
  ${CMAKE_CURRENT_LIST_DIR}/palette/palette_file.cpp
  ${CMAKE_CURRENT_LIST_DIR}/palette/palette_list.cpp
  ${CMAKE_CURRENT_LIST_DIR}/picture/fault.cpp
  ${CMAKE_CURRENT_LIST_DIR}/picture/kestrel_bitmap.cpp
  ${CMAKE_CURRENT_LIST_DIR}/picture/standard_bitmap.cpp)
target_include_directories(formats PUBLIC ${CMAKE_CURRENT_LIST_DIR})
