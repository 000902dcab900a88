orv_fuzz(AnalysisParam)
orv_fuzz(GridSpec)
