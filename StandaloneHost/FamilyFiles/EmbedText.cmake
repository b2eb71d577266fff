# Writes a source that holds a text file: -DINPUT=file -DOUTPUT=source -DNAME=variable
file(READ "${INPUT}" text)
file(CONFIGURE OUTPUT "${OUTPUT}" @ONLY CONTENT "#include <string_view>

namespace familyfiles {
extern const std::string_view @NAME@;
const std::string_view @NAME@ = R\"EMBEDDED(@text@)EMBEDDED\";
} // namespace familyfiles
")
