# What a package holds, and its name: a .zip for Windows, a .tar.gz for Linux. scripts/package writes both.
install(TARGETS tabextensionimgfmt LIBRARY DESTINATION plugins)
install(DIRECTORY ${CMAKE_BINARY_DIR}/qm DESTINATION . FILES_MATCHING PATTERN *.qm)
install(FILES ${PROJECT_SOURCE_DIR}/src/host/TabExtensionInterface.h
              ${PROJECT_SOURCE_DIR}/src/host/ZebViewerLogCategory.h
        DESTINATION include)
if(TARGET viewer)
    install(TARGETS viewer RUNTIME DESTINATION .)
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/sdk/ZebCPP DESTINATION include)
endif()

if(WIN32)
    set(system windows)
    set(line_ends CRLF)
else()
    set(system linux)
    set(line_ends LF)
endif()
foreach(text INSTALL NOTICES)
    configure_file(${PROJECT_SOURCE_DIR}/docs/package/${text}-${system}.txt
                   ${CMAKE_BINARY_DIR}/package-texts/${text}.txt @ONLY NEWLINE_STYLE ${line_ends})
    install(FILES ${CMAKE_BINARY_DIR}/package-texts/${text}.txt DESTINATION .)
endforeach()

# The viewer for Windows brings its Qt; Linux has one. qt.conf beside the viewer tells Qt of the folder qt/.
# With MSVC, windeployqt does this.
if(MINGW AND TARGET viewer)
    set(runtime libgcc_s_seh-1 libstdc++-6 libwinpthread-1 Qt5Core Qt5Gui Qt5Widgets)
    list(TRANSFORM runtime PREPEND ${WINDOWS_QT_PREFIX}/bin/)
    list(TRANSFORM runtime APPEND .dll)
    install(PROGRAMS ${runtime} DESTINATION .)
    set(plugins ${WINDOWS_QT_PREFIX}/plugins)
    install(PROGRAMS ${plugins}/platforms/qwindows.dll ${plugins}/platforms/qoffscreen.dll
            DESTINATION qt/plugins/platforms)
    install(DIRECTORY ${plugins}/imageformats ${plugins}/styles DESTINATION qt/plugins
            FILES_MATCHING PATTERN *.dll)
    install(DIRECTORY ${WINDOWS_QT_PREFIX}/lib/fonts DESTINATION qt)
    # Qt's own texts, of the module's languages; the distribution's do for any Qt of this version.
    foreach(language de fr ja zh_CN)
        install(FILES /usr/share/qt5/translations/qtbase_${language}.qm DESTINATION qt/translations)
    endforeach()
    install(FILES /usr/share/doc/qttranslations5-l10n/copyright DESTINATION licenses/qttranslations)
    install(FILES ${PROJECT_SOURCE_DIR}/resources/windows/qt.conf DESTINATION .)
    install(DIRECTORY ${WINDOWS_QT_PREFIX}/licenses DESTINATION .)
endif()

set(architecture ${CMAKE_SYSTEM_PROCESSOR})
if(architecture MATCHES "^(x86_64|AMD64)$")
    set(architecture x64)
endif()
set(PACKAGE_NAME ${PROJECT_NAME}-${PROJECT_VERSION}-${system}-${architecture})
set(CPACK_PACKAGE_FILE_NAME ${PACKAGE_NAME})
set(CPACK_PACKAGE_VENDOR ${PROJECT_NAME})
set(CPACK_PACKAGE_CHECKSUM SHA256)
set(CPACK_STRIP_FILES ON)
if(WIN32)
    set(CPACK_GENERATOR ZIP)
else()
    set(CPACK_GENERATOR TGZ)
endif()
include(CPack)
