# Read by find_package(quintar). Gives quintar::actioninterface (the interface of action plug-ins, a header alone),
# quintar::pdflibrary (the binding class) and quintar::actionshared (what action plug-ins share).
include(CMakeFindDependencyMacro)
find_dependency(Qt5 5.15 COMPONENTS Core Gui Widgets OpenGL)
include("${CMAKE_CURRENT_LIST_DIR}/quintarTargets.cmake")
