# Install and package. The installed demo host finds the plug-in and the
# translations relative to its own location, so a prefix can be moved.
# Two components, packaged the Debian way: "runtime" (velora-tracking: the
# plug-in, its translations, the demo host) and "dev" (velora-tracking-dev:
# what a host project builds against).
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(TRACKING_INSTALL_PLUGINDIR ${CMAKE_INSTALL_LIBDIR}/velora/modules)
set(TRACKING_INSTALL_PLUGINFILE
    ${TRACKING_INSTALL_PLUGINDIR}/${CMAKE_SHARED_MODULE_PREFIX}tracking${CMAKE_SHARED_MODULE_SUFFIX})
set(TRACKING_INSTALL_TRANSLATIONSDIR ${CMAKE_INSTALL_DATADIR}/velora/translations)
set(TRACKING_INSTALL_SCENARIODIR ${CMAKE_INSTALL_DATADIR}/velora-demo/scenarios)
set(TRACKING_INSTALL_INCLUDEDIR ${CMAKE_INSTALL_INCLUDEDIR}/velora)
set(TRACKING_INSTALL_CMAKEDIR ${CMAKE_INSTALL_LIBDIR}/cmake/VeloraHostApi)
set(TRACKING_RUNTIME_PACKAGE velora-tracking)
set(TRACKING_DEV_PACKAGE velora-tracking-dev)

install(TARGETS tracking LIBRARY DESTINATION ${TRACKING_INSTALL_PLUGINDIR} COMPONENT runtime)
install(TARGETS velora-demo RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime)
install(FILES ${TRACKING_QM_FILES} DESTINATION ${TRACKING_INSTALL_TRANSLATIONSDIR}
    COMPONENT runtime)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/simulator/scenarios/
    DESTINATION ${TRACKING_INSTALL_SCENARIODIR} COMPONENT runtime)
install(FILES ${PROJECT_SOURCE_DIR}/demo/velora-demo.desktop
    DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT runtime)
install(FILES ${PROJECT_SOURCE_DIR}/demo/velora-demo.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps COMPONENT runtime)

# The host's interface: headers and a package file, so that a host project
# builds against the same declarations with find_package(VeloraHostApi).
install(FILES ${TRACKING_HOSTAPI_HEADERS} DESTINATION ${TRACKING_INSTALL_INCLUDEDIR}
    COMPONENT dev)
install(TARGETS hostapi EXPORT VeloraHostApiTargets COMPONENT dev)
install(EXPORT VeloraHostApiTargets NAMESPACE Velora:: DESTINATION ${TRACKING_INSTALL_CMAKEDIR}
    COMPONENT dev)
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/VeloraHostApiConfig.cmake.in
    ${CMAKE_CURRENT_BINARY_DIR}/VeloraHostApiConfig.cmake
    INSTALL_DESTINATION ${TRACKING_INSTALL_CMAKEDIR}
    PATH_VARS TRACKING_INSTALL_PLUGINDIR TRACKING_INSTALL_PLUGINFILE
        TRACKING_INSTALL_TRANSLATIONSDIR)
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/VeloraHostApiConfigVersion.cmake
    COMPATIBILITY SameMajorVersion ARCH_INDEPENDENT)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/VeloraHostApiConfig.cmake
    ${CMAKE_CURRENT_BINARY_DIR}/VeloraHostApiConfigVersion.cmake
    DESTINATION ${TRACKING_INSTALL_CMAKEDIR} COMPONENT dev)

# What Debian asks of every package: a compressed manual page for each
# program, and a copyright file and changelog in the package's doc folder.
# gzip -n keeps the time stamp out, so that rebuilds give the same bytes.
set(_debian_source ${CMAKE_CURRENT_LIST_DIR}/debian)
set(_debian_build ${CMAKE_CURRENT_BINARY_DIR}/debian)
file(STRINGS ${_debian_source}/changelog _changelog_head LIMIT_COUNT 1)
if(NOT _changelog_head MATCHES "^${TRACKING_RUNTIME_PACKAGE} \\(${PROJECT_VERSION}\\) ")
    message(FATAL_ERROR "cmake/debian/changelog wants an entry for ${PROJECT_VERSION} on top")
endif()
add_custom_command(OUTPUT ${_debian_build}/changelog.gz ${_debian_build}/velora-demo.1.gz
    COMMAND ${CMAKE_COMMAND} -E make_directory ${_debian_build}
    COMMAND ${CMAKE_COMMAND} -E copy ${_debian_source}/changelog ${_debian_source}/velora-demo.1
        ${_debian_build}
    COMMAND gzip -9nf ${_debian_build}/changelog ${_debian_build}/velora-demo.1
    DEPENDS ${_debian_source}/changelog ${_debian_source}/velora-demo.1
    COMMENT "Compressing the changelog and the manual page" VERBATIM)
add_custom_target(debian_docs ALL DEPENDS ${_debian_build}/changelog.gz
    ${_debian_build}/velora-demo.1.gz)
install(FILES ${_debian_build}/velora-demo.1.gz DESTINATION ${CMAKE_INSTALL_MANDIR}/man1
    COMPONENT runtime)
# A deliberate lintian finding is overridden in
# debian/<package>.lintian-overrides, with a comment saying why.
foreach(component runtime dev)
    string(TOUPPER ${component} _upper)
    set(_package ${TRACKING_${_upper}_PACKAGE})
    install(FILES ${_debian_source}/copyright ${_debian_build}/changelog.gz
        DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${_package} COMPONENT ${component})
    if(EXISTS ${_debian_source}/${_package}.lintian-overrides)
        install(FILES ${_debian_source}/${_package}.lintian-overrides RENAME ${_package}
            DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides COMPONENT ${component})
    endif()
endforeach()

set(CPACK_PACKAGE_NAME ${TRACKING_RUNTIME_PACKAGE})
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "Velora tracking team <tracking@velora.invalid>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_GENERATOR DEB)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL runtime dev)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_STRIP_FILES ON)
# Dependencies of the binaries come from dpkg-shlibdeps alone: its versions
# (libqt5core5a >= 5.15.1 for a plug-in built against 5.15) and alternatives
# (libqt5gui5 | libqt5gui5-gles) are what the binaries need.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${TRACKING_RUNTIME_PACKAGE})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION science)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_RECOMMENDS qttranslations5-l10n)
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION
    "Velora tracking settings plug-in and demo host
The tracking settings module of the Velora front-end: a Tracking menu with the
single-marker settings and the body administration (standard bodies,
Gripwands, finger-tracking hands, measurement tools, target-library search,
6DOF filter), read and written through the host's controller channel.

This package holds the plug-in with its German translation, and velora-demo,
a small host that runs the plug-in on a simulated tracking controller and logs
every command it sends.")

# The headers include Qt's and the package file finds Qt, hence qtbase5-dev;
# the package file names the plug-in of the same version.
set(CPACK_DEBIAN_DEV_PACKAGE_NAME ${TRACKING_DEV_PACKAGE})
set(CPACK_DEBIAN_DEV_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEV_PACKAGE_DEPENDS "qtbase5-dev (>= 5.15)")
set(CPACK_COMPONENT_DEV_DEPENDS runtime)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
set(CPACK_DEBIAN_DEV_DESCRIPTION
    "Velora host interface for the tracking settings plug-in (development)
The declarations a Velora host shares with its modules (ModuleInterface,
MenuEntry, IOManager, MessageReceiver, BackendVersions) and the CMake package
VeloraHostApi, which also tells where the tracking plug-in and its
translations are installed. For host projects that load the tracking settings
plug-in.")
include(CPack)

# Where the installed demo host looks, relative to its own folder.
file(RELATIVE_PATH _plugin_from_bin /${CMAKE_INSTALL_BINDIR} /${TRACKING_INSTALL_PLUGINDIR})
file(RELATIVE_PATH _translations_from_bin /${CMAKE_INSTALL_BINDIR} /${TRACKING_INSTALL_TRANSLATIONSDIR})
file(RELATIVE_PATH _scenarios_from_bin /${CMAKE_INSTALL_BINDIR} /${TRACKING_INSTALL_SCENARIODIR})
target_compile_definitions(demohost PRIVATE
    TRACKING_INSTALLED_PLUGIN="${_plugin_from_bin}/$<TARGET_FILE_NAME:tracking>"
    TRACKING_INSTALLED_TRANSLATIONS="${_translations_from_bin}"
    TRACKING_INSTALLED_SCENARIOS="${_scenarios_from_bin}")
