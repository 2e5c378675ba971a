# Install and package. The installed demo host finds the plug-in and the
# translations relative to its own location, so a prefix can be moved.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(TRACKING_INSTALL_PLUGINDIR ${CMAKE_INSTALL_LIBDIR}/velora/modules)
set(TRACKING_INSTALL_TRANSLATIONSDIR ${CMAKE_INSTALL_DATADIR}/velora/translations)
set(TRACKING_INSTALL_SCENARIODIR ${CMAKE_INSTALL_DATADIR}/velora-demo/scenarios)
set(TRACKING_INSTALL_INCLUDEDIR ${CMAKE_INSTALL_INCLUDEDIR}/velora)
set(TRACKING_INSTALL_CMAKEDIR ${CMAKE_INSTALL_LIBDIR}/cmake/VeloraHostApi)

install(TARGETS tracking LIBRARY DESTINATION ${TRACKING_INSTALL_PLUGINDIR})
install(TARGETS velora-demo RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(FILES ${TRACKING_QM_FILES} DESTINATION ${TRACKING_INSTALL_TRANSLATIONSDIR})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/simulator/scenarios/ DESTINATION ${TRACKING_INSTALL_SCENARIODIR})
install(FILES ${PROJECT_SOURCE_DIR}/demo/velora-demo.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${PROJECT_SOURCE_DIR}/demo/velora-demo.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)

# The host's interface: headers and a package file, so that a host project
# builds against the same declarations with find_package(VeloraHostApi).
install(FILES ${TRACKING_HOSTAPI_HEADERS} DESTINATION ${TRACKING_INSTALL_INCLUDEDIR})
install(TARGETS hostapi EXPORT VeloraHostApiTargets)
install(EXPORT VeloraHostApiTargets NAMESPACE Velora:: DESTINATION ${TRACKING_INSTALL_CMAKEDIR})
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/VeloraHostApiConfig.cmake.in
    ${CMAKE_CURRENT_BINARY_DIR}/VeloraHostApiConfig.cmake
    INSTALL_DESTINATION ${TRACKING_INSTALL_CMAKEDIR}
    PATH_VARS TRACKING_INSTALL_PLUGINDIR TRACKING_INSTALL_TRANSLATIONSDIR)
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/VeloraHostApiConfigVersion.cmake
    COMPATIBILITY SameMajorVersion ARCH_INDEPENDENT)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/VeloraHostApiConfig.cmake
    ${CMAKE_CURRENT_BINARY_DIR}/VeloraHostApiConfigVersion.cmake
    DESTINATION ${TRACKING_INSTALL_CMAKEDIR})

set(CPACK_PACKAGE_NAME velora-tracking)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "Velora tracking team <tracking@velora.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY
    "Velora tracking settings plug-in, its host interface and a demo host")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# On top of what dpkg-shlibdeps finds: a host loads the plug-in only with the
# Qt minor version it was built against or newer.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libqt5core5a (>= 5.15), libqt5gui5 (>= 5.15), libqt5widgets5 (>= 5.15), libqt5xml5 (>= 5.15)")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS qttranslations5-l10n)
set(CPACK_GENERATOR DEB)
include(CPack)

# Where the installed demo host looks, relative to its own folder.
file(RELATIVE_PATH _plugin_from_bin /${CMAKE_INSTALL_BINDIR} /${TRACKING_INSTALL_PLUGINDIR})
file(RELATIVE_PATH _translations_from_bin /${CMAKE_INSTALL_BINDIR} /${TRACKING_INSTALL_TRANSLATIONSDIR})
file(RELATIVE_PATH _scenarios_from_bin /${CMAKE_INSTALL_BINDIR} /${TRACKING_INSTALL_SCENARIODIR})
target_compile_definitions(demohost PRIVATE
    TRACKING_INSTALLED_PLUGIN="${_plugin_from_bin}/$<TARGET_FILE_NAME:tracking>"
    TRACKING_INSTALLED_TRANSLATIONS="${_translations_from_bin}"
    TRACKING_INSTALLED_SCENARIOS="${_scenarios_from_bin}")
