orv_fuzz(ColorFill)
