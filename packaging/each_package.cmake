# Read for each kind of package. The archive holds the program alone; it isn't installed anywhere,
# so a menu entry couldn't name it.
if(CPACK_GENERATOR STREQUAL "TGZ")
  list(GET CPACK_INSTALL_CMAKE_PROJECTS 0 build)
  set(CPACK_INSTALL_CMAKE_PROJECTS "${build};raster-mill;program;/")
  set(CPACK_PACKAGING_INSTALL_PREFIX /)
else()
  set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
endif()
