# What `package_source` packs: the sources, without what is built of them and without the history.

set(CPACK_VERBATIM_VARIABLES ON)
string(REGEX REPLACE "([][+.*?^()])" "\\\\\\1" source_dir ${PROJECT_SOURCE_DIR})
set(CPACK_SOURCE_GENERATOR TXZ)
set(CPACK_SOURCE_PACKAGE_FILE_NAME torvane-settings-${PROJECT_VERSION})
string(REGEX REPLACE "([][+.*?^()])" "\\\\\\1" build_dir ${PROJECT_BINARY_DIR})
set(CPACK_SOURCE_IGNORE_FILES "^${source_dir}/(build[^/]*|install|obj-[^/]*)/"
    "^${source_dir}/debian/(\\.debhelper|tmp|torvane-settings|libzelcontrolcenter-dev)/" "^${build_dir}/"
    "^${source_dir}/\\.(git|ci/)")
