# What every target of the project has in common.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_AUTOMOC ON)
set(CMAKE_AUTORCC ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_INCLUDE_CURRENT_DIR OFF)
set(CMAKE_INSTALL_RPATH "$ORIGIN:$ORIGIN/../${CMAKE_INSTALL_LIBDIR}")

find_program(PROPERTIES_CCACHE ccache)
if(PROPERTIES_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${PROPERTIES_CCACHE}")
endif()

# Of the project's own code. They are errors in the presets that say so, and only warnings for everybody else.
add_library(properties_warnings INTERFACE)
target_compile_options(properties_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Woverloaded-virtual -Wnon-virtual-dtor -Wconversion -Wold-style-cast -Wcast-align
    -Wunused -Wformat=2 $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-cond -Wlogical-op>)

# What nearly every source includes, parsed once for all targets instead of once for each source. Sources still include
# all that they use: CI compiles them without, too (CMAKE_DISABLE_PRECOMPILE_HEADERS).
function(properties_use_toolkit_headers target)
    if(NOT TARGET properties_toolkit_headers)
        file(CONFIGURE OUTPUT ${PROJECT_BINARY_DIR}/toolkit_headers.cpp CONTENT "")
        add_library(properties_toolkit_headers OBJECT ${PROJECT_BINARY_DIR}/toolkit_headers.cpp)
        set_target_properties(properties_toolkit_headers PROPERTIES AUTOMOC OFF AUTORCC OFF)
        target_link_libraries(properties_toolkit_headers PRIVATE Qt5::Widgets properties_warnings)
        target_precompile_headers(properties_toolkit_headers PRIVATE
            <QApplication> <QBoxLayout> <QCheckBox> <QComboBox> <QFile> <QGraphicsItem> <QGraphicsScene> <QGraphicsView>
            <QHash> <QLineEdit> <QMap> <QPainter> <QRegularExpression> <QSet> <QSpinBox> <QTextStream> <QTreeWidget>
            <QUndoCommand> <algorithm> <cmath> <functional> <map> <memory> <optional> <vector>)
    endif()
    target_precompile_headers(${target} REUSE_FROM properties_toolkit_headers)
endfunction()

# properties_sources(target folder...): all sources and headers of these folders, also those that are added later.
function(properties_sources target)
    list(TRANSFORM ARGN APPEND "/*.cpp" OUTPUT_VARIABLE patterns)
    list(TRANSFORM ARGN APPEND "/*.h" OUTPUT_VARIABLE headers)
    file(GLOB sources CONFIGURE_DEPENDS ${patterns} ${headers})
    target_sources(${target} PRIVATE ${sources})
    file(REMOVE ${CMAKE_CURRENT_BINARY_DIR}/${target}_autogen/timestamp) # Or moc does not notice a new source.
endfunction()

# While the major version is 0 every minor version may break what was built against the one before.
set(PROPERTIES_SOVERSION ${PROJECT_VERSION_MAJOR})
if(PROJECT_VERSION_MAJOR EQUAL 0)
    set(PROPERTIES_SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
endif()

if(PROPERTIES_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
