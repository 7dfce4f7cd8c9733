# SPDX-License-Identifier: MIT
# Where things are installed, under any prefix. Two components make the program: `host`, and `pane`
# with the agent in its bundle.
include(GNUInstallDirs)
set(CMAKE_INSTALL_DEFAULT_COMPONENT_NAME host)

set(korvex_install_dir "${CMAKE_INSTALL_LIBDIR}/korvex")
set(korvex_install_contents "${korvex_install_dir}/Korvex.prefPane/Contents")
# The program finds its bundle by this path from its own folder, wherever both have been moved.
file(RELATIVE_PATH korvex_dir_from_program
  "${CMAKE_INSTALL_FULL_BINDIR}" "${CMAKE_INSTALL_FULL_LIBDIR}/korvex")
