# What `cmake --install` lays out: bin/ with all libraries that a host ships, lib/ with the import libraries, include/, and
# the package for find_package(OrtinControls CONFIG REQUIRED) with the target Ortin::Controls.
include(CMakePackageConfigHelpers)

set(ortin_package_folder lib/cmake/OrtinControls)

set_target_properties(OrtinControls PROPERTIES EXPORT_NAME Controls)
set_target_properties(OrtinFoundation PROPERTIES EXPORT_NAME Foundation)
set_target_properties(OrtinMfc PROPERTIES EXPORT_NAME Mfc)
set_target_properties(OrtinXtp PROPERTIES EXPORT_NAME Xtp)
set_target_properties(ortin_platform_options PROPERTIES EXPORT_NAME PlatformOptions)

install(TARGETS OrtinControls OrtinFoundation OrtinMfc OrtinXtp ortin_platform_options
    EXPORT OrtinControlsTargets
    RUNTIME DESTINATION bin
    ARCHIVE DESTINATION lib
    INCLUDES DESTINATION include include/OrtinPlatform)
install(FILES ${ORTIN_RUNTIME_LIBRARIES} DESTINATION bin)
install(DIRECTORY include/OrtinControls DESTINATION include)
install(DIRECTORY platform/foundation/include/ platform/mfc/include/ platform/xtp/include/
    DESTINATION include/OrtinPlatform)

install(EXPORT OrtinControlsTargets NAMESPACE Ortin:: FILE OrtinControlsConfig.cmake
    DESTINATION ${ortin_package_folder})
write_basic_package_version_file(${CMAKE_BINARY_DIR}/OrtinControlsConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_BINARY_DIR}/OrtinControlsConfigVersion.cmake DESTINATION ${ortin_package_folder})
