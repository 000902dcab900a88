orv_fuzz(ColorFile)
orv_fuzz(FontList)
orv_fuzz(GFont)
orv_fuzz(Symbol)
