# Qt's headers, read once for all sources: use_precompiled_headers(TARGET...). Off unless a preset asks for
# it, for it hides a header that a source forgot.
option(PRECOMPILE_HEADERS "Precompile Qt's headers" OFF)

if(PRECOMPILE_HEADERS)
    file(WRITE ${CMAKE_BINARY_DIR}/precompiled/precompiled.cpp "")
    add_library(precompiled_headers OBJECT ${CMAKE_BINARY_DIR}/precompiled/precompiled.cpp)
    target_link_libraries(precompiled_headers PRIVATE project_settings Qt5::Widgets)
    set_target_properties(precompiled_headers PROPERTIES AUTOMOC OFF AUTOUIC OFF AUTORCC OFF)
    target_precompile_headers(precompiled_headers PRIVATE <QtWidgets> <memory> <optional> <vector>)
endif()

function(use_precompiled_headers)
    if(PRECOMPILE_HEADERS)
        foreach(target ${ARGN})
            target_precompile_headers(${target} REUSE_FROM precompiled_headers)
        endforeach()
    endif()
endfunction()
