# Installs the desktop entry with the program's absolute path, because its folder is on nobody's search path. Quotes the
# path as the entry's format requires.
set(program "${prefix}/Kickwell/Kickwell")
string(REGEX REPLACE "([\\\\\"`$])" "\\\\\\1" program "${program}")
string(REPLACE "\\" "\\\\" program "${program}")
string(REPLACE "%" "%%" program "${program}")
file(READ "${source}/share/kickwell.desktop" text)
string(REPLACE "Exec=Kickwell" "Exec=\"${program}\"" text "${text}")
set(file "$ENV{DESTDIR}${prefix}/share/applications/kickwell.desktop")
message(STATUS "Installing: ${file}")
file(WRITE "${file}" "${text}")
