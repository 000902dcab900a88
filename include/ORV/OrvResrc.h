#pragma once

#include "ORV/ResrcDBList.h"

namespace ORV {

/// The vocabulary of settings: each with its environment variable, option and help line.
class OrvResrc {
public:
    OrvResrc() = delete;

    /// The single settings bear the very names of the resources (a group is called CURRENT, another
    /// DEVICE); the groups are in capitals.
    enum Resources {
        background,
        calibration,
        city_file,
        color_clabel,
        color_cont,
        color_data,
        color_fgrid,
        color_fill,
        color_flabel,
        color_fmap,
        color_front,
        color_grid,
        color_label,
        color_latlon,
        color_map,
        color_parcel,
        color_table,
        color_watch,
        con_base,
        con_path,
        con_interval,
        current,
        data_path,
        device,
        draw,
        file_path,
        filename,
        font_list,
        format,
        geometry,
        grid_domain,
        grid_path,
        grid_num,
        grid_type,
        help,
        hour,
        icon,
        identifier,
        image_path,
        in_file,
        input,
        inverse,
        label,
        level,
        log_file,
        logo,
        map_file,
        message,
        model,
        model_path,
        name_conv,
        num_hour,
        object_param,
        out_file,
        output,
        parameter,
        plot_domain,
        plot_range,
        plot_scale,
        plot_type,
        product,
        prod_file,
        raw_path,
        sat_path,
        stat_prior,
        text_path,
        time,
        timezone,
        title,
        type,
        variable,
        var_file,
        vect_mag,
        BASE,
        PATH,
        FILE,
        CURRENT,
        CITY,
        IO,
        GRID,
        DOMAIN,
        DATABASE,
        PLOT,
        COLOR,
        COLOR_CONT,
        IDENT,
        OBJECT,
        CONT,
        DEVICE,
    };

    /// Fills the item of a single setting; returns 0 for any other id.
    static int get(int id, ResrcDBItem& item);
    /// Appends a single setting, or the settings of a group in their order.
    static int add(ResrcDBList& list, int id);
};

} // namespace ORV
