# Translation catalogues: every <prefix>_<language>.ts in a folder is compiled with lrelease
# to a .qm catalogue at build time and compiled into the program, and a function
# `std::span<const QmCatalog> <function>()` lists them. A new language is one more .ts file.
find_program(DOCMGR_LRELEASE NAMES lrelease lrelease-qt6
  HINTS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS} ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_LIBEXECS}
        /usr/lib/qt6/bin /usr/lib/qt6/libexec
  REQUIRED)

function(docmgr_add_catalogs out function ts_dir prefix)
  file(GLOB ts_files CONFIGURE_DEPENDS ${ts_dir}/${prefix}_*.ts)
  set(sources)
  set(declarations "")
  set(entries "")
  foreach(ts ${ts_files})
    get_filename_component(name ${ts} NAME_WE)
    string(REPLACE "${prefix}_" "" language ${name})
    set(qm ${CMAKE_CURRENT_BINARY_DIR}/${name}.qm)
    set(cpp ${CMAKE_CURRENT_BINARY_DIR}/${name}_qm.cpp)
    add_custom_command(OUTPUT ${cpp}
      COMMAND ${DOCMGR_LRELEASE} -silent -nounfinished ${ts} -qm ${qm}
      COMMAND ${CMAKE_COMMAND} -DQM=${qm} -DOUT=${cpp} -DSYMBOL=${name}_qm
              -P ${CMAKE_SOURCE_DIR}/cmake/EmbedCatalog.cmake
      DEPENDS ${ts} ${CMAKE_SOURCE_DIR}/cmake/EmbedCatalog.cmake
      COMMENT "Compiling the translations ${name}.ts"
      VERBATIM)
    list(APPEND sources ${cpp})
    string(APPEND declarations "extern const unsigned char ${name}_qm[];\nextern const unsigned ${name}_qm_size;\n")
    string(APPEND entries "        {\"${language}\", ${name}_qm, ${name}_qm_size},\n")
  endforeach()
  set(registry ${CMAKE_CURRENT_BINARY_DIR}/${function}.cpp)
  file(CONFIGURE OUTPUT ${registry} CONTENT
"// Generated: the translation catalogues compiled into this program.
#include \"resources/qmcatalog.h\"

@declarations@
std::span<const QmCatalog> @function@()
{
    static const QmCatalog catalogs[] = {
@entries@        {nullptr, nullptr, 0},
    };
    return std::span<const QmCatalog>(catalogs, std::size(catalogs) - 1);
}
" @ONLY)
  list(APPEND sources ${registry})
  set(${out} ${sources} PARENT_SCOPE)
endfunction()
