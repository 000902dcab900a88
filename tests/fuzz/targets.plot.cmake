orv_fuzz(PlotAttr)
orv_fuzz(PlotText)
target_include_directories(fuzz_PlotText PRIVATE ${PROJECT_SOURCE_DIR}/lib/plot)
