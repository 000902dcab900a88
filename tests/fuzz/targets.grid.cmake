orv_fuzz(AnalysisParam)
orv_fuzz(GridSpec)
orv_fuzz(GridMath)
