# Fighter figures and motions for the content generator: a library of plain records that the
# generator's main hands to the file writers, and a preview tool that renders them to pictures.
file(GLOB ASSETGEN_CONTENT_SOURCES CONFIGURE_DEPENDS
     ${CMAKE_SOURCE_DIR}/tools/assetgen/figures/*.cpp
     ${CMAKE_SOURCE_DIR}/tools/assetgen/motion/*.cpp
     ${CMAKE_SOURCE_DIR}/tools/assetgen/moves/*.cpp)
file(GLOB ASSETGEN_CONTENT_HEADERS CONFIGURE_DEPENDS
     ${CMAKE_SOURCE_DIR}/tools/assetgen/figures/*.h
     ${CMAKE_SOURCE_DIR}/tools/assetgen/motion/*.h
     ${CMAKE_SOURCE_DIR}/tools/assetgen/moves/*.h)
add_library(assetgen_content STATIC ${ASSETGEN_CONTENT_SOURCES})
target_include_directories(assetgen_content PUBLIC ${CMAKE_SOURCE_DIR}/tools/assetgen)
# The characters' own moves follow the game's move tables and bake through the file writers.
target_sources(assetgen_content PRIVATE ${CMAKE_SOURCE_DIR}/src/fight/fight_moves.cpp)
target_include_directories(assetgen_content PUBLIC ${CMAKE_SOURCE_DIR}/src ${CMAKE_SOURCE_DIR}/tools)
target_link_libraries(assetgen_content PUBLIC valdrune_writers)

file(GLOB ASSETGEN_PREVIEW_SOURCES CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/tools/assetgen/preview/*.cpp)
if(ASSETGEN_PREVIEW_SOURCES)
  add_executable(assetgen_preview ${ASSETGEN_PREVIEW_SOURCES})
  target_link_libraries(assetgen_preview PRIVATE assetgen_content PNG::PNG)
endif()
