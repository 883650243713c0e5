# Everything that all targets are compiled with, in one place: link `compile_settings` privately.
add_library(compile_settings INTERFACE)
target_compile_features(compile_settings INTERFACE cxx_std_17)
target_compile_definitions(compile_settings INTERFACE
    QT_NO_KEYWORDS
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_URL_CAST_FROM_STRING
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_STRICT_ITERATORS
    QT_DEPRECATED_WARNINGS
    QT_DISABLE_DEPRECATED_BEFORE=0x050C00)

# What is shipped has symbols too, in an archive of their own.
set(with_symbols $<AND:$<CONFIG:Release>,$<BOOL:${GUI_SYMBOLS}>>)

# Warnings high everywhere, and the hardening that each platform's tools have.
if(MSVC)
    target_compile_options(compile_settings INTERFACE
        /W4 /permissive- /utf-8 $<$<BOOL:${GUI_WERROR}>:/WX>
        # A dialog inherits show(), hide() and others from its base by dominance, on purpose.
        /wd4250
        /sdl /guard:cf
        $<${with_symbols}:/Zi>)
    target_link_options(compile_settings INTERFACE
        $<${with_symbols}:/DEBUG> $<$<CONFIG:Release>:/OPT:REF> $<$<CONFIG:Release>:/OPT:ICF>
        /guard:cf /DYNAMICBASE /NXCOMPAT $<$<EQUAL:${CMAKE_SIZEOF_VOID_P},8>:/HIGHENTROPYVA>)
else()
    target_compile_options(compile_settings INTERFACE
        -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wundef
        $<$<BOOL:${GUI_WERROR}>:-Werror>
        # Qt's own macros are called so.
        $<$<CXX_COMPILER_ID:Clang>:-Wno-gnu-zero-variadic-macro-arguments>
        -fstack-protector-strong
        $<${with_symbols}:-g>)
    # Needs an optimising build.
    target_compile_definitions(compile_settings INTERFACE $<$<NOT:$<CONFIG:Debug>>:_FORTIFY_SOURCE=2>)
    if(WIN32)
        # The stack protector and _FORTIFY_SOURCE need MinGW's libssp. Linked in, because -fstack-protector-strong as a
        # linker's option would need its DLL, which no Windows machine has.
        target_link_libraries(compile_settings INTERFACE -l:libssp.a)
        target_link_options(compile_settings INTERFACE
            LINKER:--dynamicbase,--nxcompat $<$<EQUAL:${CMAKE_SIZEOF_VOID_P},8>:LINKER:--high-entropy-va>)
    elseif(NOT APPLE)
        # A library of which nothing is used is not loaded: what Debian's GCC tells the linker anyway, and its Clang not.
        target_link_options(compile_settings INTERFACE LINKER:-z,relro,-z,now LINKER:--as-needed)
    endif()
endif()

if(GUI_SANITIZE)
    # Recovery is off, so that the first report fails the run.
    set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_compile_options(compile_settings INTERFACE ${sanitizers})
    target_link_options(compile_settings INTERFACE ${sanitizers})
endif()

if(GUI_FUZZ)
    # The fuzzer learns from the branches that its input reaches.
    target_compile_options(compile_settings INTERFACE -fsanitize=fuzzer-no-link)
endif()
