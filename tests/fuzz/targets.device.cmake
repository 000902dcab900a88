orv_fuzz(PageParam)
