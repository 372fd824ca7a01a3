# Third-party libraries, all from the distribution's packages.
find_package(PkgConfig REQUIRED)
find_package(ZLIB REQUIRED)
find_package(Freetype REQUIRED)
pkg_check_modules(HWY REQUIRED IMPORTED_TARGET libhwy)
pkg_check_modules(LZ4 REQUIRED IMPORTED_TARGET liblz4)
pkg_check_modules(HARFBUZZ REQUIRED IMPORTED_TARGET harfbuzz)
pkg_check_modules(FRIBIDI REQUIRED IMPORTED_TARGET fribidi)
