orv_fuzz(ColorFill)
orv_fuzz(VectParam)
target_include_directories(fuzz_VectParam PRIVATE ${PROJECT_SOURCE_DIR}/tests)
