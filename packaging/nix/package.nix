# For Nix, from the source tree that this file lies in. docs/packaging.md says what of this was tried.
{ lib
, stdenv
, cmake
, curl
, fontconfig
, freetype
, libraqm
, libxml2
, ninja
, pkg-config
, qtbase
, qtsvg
, qttools
, qtwayland
, sqlite
, udev
, wrapQtAppsHook
, xorg
, zlib
}:

stdenv.mkDerivation {
  pname = "quindle-helper";
  version = "0.1.0";
  src = lib.cleanSource ../..;

  nativeBuildInputs = [ cmake ninja pkg-config qttools wrapQtAppsHook ];
  buildInputs = [ curl fontconfig freetype libxml2 qtbase qtsvg qtwayland sqlite udev xorg.libxcb zlib ];
  cmakeFlags = [ "-DQUINDLE_TESTS=OFF" ];

  # Opened by name when a text needs it.
  qtWrapperArgs = [ "--prefix LD_LIBRARY_PATH : ${lib.makeLibraryPath [ libraqm ]}" ];

  meta = {
    description = "Battery charge, health and time in the panel";
    # No licence has been granted: packaging/debian/copyright.
    license = lib.licenses.unfree;
    platforms = lib.platforms.linux;
    mainProgram = "quindle";
  };
}
