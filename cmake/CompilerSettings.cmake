# Warnings and sanitizers for every target of ours: link project_settings.
add_library(project_settings INTERFACE)

target_compile_definitions(project_settings INTERFACE QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY
                                                      QT_NO_URL_CAST_FROM_STRING
                                                      QT_DEPRECATED_WARNINGS)

if(MSVC)
    target_compile_options(project_settings INTERFACE /W4 /permissive- /utf-8 /Zc:__cplusplus)
else()
    target_compile_options(project_settings INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow
                                                      -Wnon-virtual-dtor)
    # Of an optimised std::optional GCC 12 says that its empty value may be used.
    if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
        target_compile_options(project_settings INTERFACE
            $<$<CONFIG:Release,RelWithDebInfo>:-Wno-maybe-uninitialized>)
    endif()
endif()
if(WIN32)
    target_compile_definitions(project_settings INTERFACE NOMINMAX WIN32_LEAN_AND_MEAN UNICODE _UNICODE)
endif()

# The module is a guest in the viewer's process: a fault of ours should stop there, not be of use.
if(MSVC)
    target_compile_options(project_settings INTERFACE /GS /guard:cf)
    target_link_options(project_settings INTERFACE /DYNAMICBASE /HIGHENTROPYVA /NXCOMPAT /guard:cf)
else()
    target_compile_options(project_settings INTERFACE -fstack-protector-strong)
    if(MINGW)
        # The check of the stack is in a library here. Static: of DLLs, only Qt's and the system's are needed.
        target_link_options(project_settings INTERFACE -fstack-protector-strong -static
                                                       -Wl,--dynamicbase,--high-entropy-va,--nxcompat)
    elseif(NOT APPLE)
        target_link_options(project_settings INTERFACE -Wl,-z,relro,-z,now)
        # Needs an optimised build; the sanitizers check the same calls by themselves.
        if(NOT BUILD_SANITIZED AND NOT BUILD_THREAD_SANITIZED)
            target_compile_definitions(project_settings INTERFACE
                $<$<CONFIG:Release,RelWithDebInfo>:_FORTIFY_SOURCE=2>)
        endif()
    endif()
endif()

if(BUILD_SANITIZED)
    set(sanitizers -fsanitize=address,undefined,float-cast-overflow,integer-divide-by-zero
                   -fno-sanitize-recover=all -fno-omit-frame-pointer)
    # GCC 12 takes the sanitizers' checks of a std::variant for uses of it.
    target_compile_options(project_settings INTERFACE -Wno-maybe-uninitialized)
elseif(BUILD_THREAD_SANITIZED)
    set(sanitizers -fsanitize=thread)
endif()
target_compile_options(project_settings INTERFACE ${sanitizers})
target_link_options(project_settings INTERFACE ${sanitizers})
