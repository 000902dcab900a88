orv_fuzz(ColorFill)
orv_fuzz(VectParam)
orv_fuzz(ContParam)
