#include "ORV/OrvResrc.h"

#include <iterator>

namespace ORV {
namespace {
struct Row {
    const char* name;
    const char* env;
    const char* cmdln;
    const char* help;
};
constexpr Row rows[] = {
    {"background", "orvback", "bg", "-bg color    Background color"},
    {"calibration", "orvcalib", "ca", "-ca cal      Calibration data"},
    {"city_file", "orvcity", "cf", "-cf file     City database file"},
    {"color_clabel", "orvclrclab", "cocl", "-cocl color  Contour label color"},
    {"color_cont", "orvclrcont", "coco", "-coco color  Contour line color"},
    {"color_data", "orvclrdat", "cod", "-cod color   Data color and attribs"},
    {"color_fgrid", "orvclrfgrid", "cofg", "-cofg color  Grid color for fill plots"},
    {"color_fill", "orvclrfill", "cof", "-cof clr...  Fill colors and attribs"},
    {"color_flabel", "orvclrflab", "cofl", "-cofl color  Contour label color for fill plots"},
    {"color_fmap", "orvclrfmap", "cofm", "-cofm color  Map color for fill plots"},
    {"color_front", "orvclrfrt", "cofr", "-cofr clr... Colors for fronts"},
    {"color_grid", "orvclrgrid", "cog", "-cog color   Grid color"},
    {"color_label", "orvclrlab", "col", "-col color   Label color"},
    {"color_latlon", "orvclrll", "coll", "-coll color  Lat-lon line color"},
    {"color_map", "orvclrmap", "com", "-com color   Map color and attribs"},
    {"color_parcel", "orvclrpar", "copa", "-copa clr... Parcel sounding color"},
    {"color_table", "orvclrtbl", "ct", "-ct files... Color table file"},
    {"color_watch", "orvclrwat", "cowa", "-cowa clr... Colors for watch boxes"},
    {"con_base", "orvconbase", "cb", "-cb base     Contour base value"},
    {"con_path", "orvcpath", "cp", "-cp path     Converted data path"},
    {"con_interval", "orvconint", "ci", "-ci intrvl   Contour interval"},
    {"current", "orvcurrent", "cu", "-cu [hour]   Currency of input data"},
    {"data_path", "orvdpath", "dp", "-dp path     Data path"},
    {"device", "orvdevice", "de", "-de device   Device type and params"},
    {"draw", "orvdraw", "dr", "-dr types... Draw these types"},
    {"file_path", "orvfpath", "fp", "-fp path     File path"},
    {"filename", "orvfilenm", "fp", "filenames... Filenames"},
    {"font_list", "orvfont", "fl", "-fl list     List of usable fonts"},
    {"format", "orvformat", "fm", "-fm format   Formats"},
    {"geometry", "orvgeom", "ge", "-ge geometry Window geometry"},
    {"grid_domain", "orvgrddom", "gd", "-gd domain   Grid domain"},
    {"grid_path", "orvgpath", "gp", "-gp path     Grid path"},
    {"grid_num", "orvgrdnum", "gn", "-gn num      Gridnumber"},
    {"grid_type", "orvgrdtype", "gt", "-gt type     Gridtype"},
    {"help", "orvhelp", "h", "-h           Print help"},
    {"hour", "orvhour", "ho", "-ho [hour]   Use specific hour"},
    {"icon", "orvicon", "ic", "-ic          Specify window icon mode"},
    {"identifier", "orvident", "id", "-id ident    Specify the station ID"},
    {"image_path", "orvipath", "ip", "-ip path     Image path"},
    {"in_file", "orvinfile", "if", "-if files    Input file type"},
    {"input", "orvin", "in", "-in type     Input type"},
    {"inverse", "orvinv", "iv", "-iv          Inverse colors"},
    {"label", "orvlabel", "la", "-la label... Plot these labels"},
    {"level", "orvlevel", "le", "-le level    Vertical level"},
    {"log_file", "orvlog", "lf", "-lf file     Log file name"},
    {"logo", "orvlogo", "lo", "-lo logo     Logo overlay"},
    {"map_file", "orvmap", "mf", "-mf files    Map files"},
    {"message", "orvmess", "me", "-me level    Message level"},
    {"model", "orvmodel", "mo", "-mo type     Model type"},
    {"model_path", "orvmpath", "mp", "-mp path     Model path"},
    {"name_conv", "orvname", "nc", "-nc file     Name convention file"},
    {"num_hour", "orvnumhour", "nh", "-nh [hour]   Number of hours to use"},
    {"object_param", "orvobject", "oa",
     "-oa smooth[,radinf,pass,conv,min] Specifies objective analysis params"},
    {"out_file", "orvoutfile", "of", "-of files    Output file type"},
    {"output", "orvout", "ou", "-ou type     Output type"},
    {"parameter", "orvparam", "pa", "-pa param... Program parameters"},
    {"plot_domain", "orvpltdom", "pd", "-pd domain   Plot domain"},
    {"plot_range", "orvrange", "ra", "-ra range    Plot ranges"},
    {"plot_scale", "orvscale", "sc", "-sc scale    Plot scale factor"},
    {"plot_type", "orvplot", "pl", "-pl type     Plot type"},
    {"product", "orvproduct", "ph", "-ph prod     Product header"},
    {"prod_file", "orvprodfile", "pf", "-pf file     Product file used for ingest"},
    {"raw_path", "orvrpath", "rp", "-rp path     Raw path"},
    {"sat_path", "orvspath", "sp", "-sp path     Satellite path"},
    {"stat_prior", "orvprior", "pr", "-pr prior    Station priority"},
    {"text_path", "orvtpath", "tp", "-tp path     Text path"},
    {"time", "orvtime", "ft", "-ft time     Forecast time"},
    {"timezone", "orvtz", "tz", "-tz zone     Time zone"},
    {"title", "orvtitle", "ti", "-ti title    Window title"},
    {"type", "orvtype", "ty", "-ty type     Data type"},
    {"variable", "orvvar", "va", "-va var...   Type of data to plot"},
    {"var_file", "orvvarfile", "vf", "-vf file     Name of variable file to search"},
    {"vect_mag", "orvmag", "vm", "-vm mag      The magnitude to scale vectors to"},
};
static_assert(std::size(rows) == OrvResrc::BASE);

constexpr int max_members = 9;
constexpr int end = -1;

struct Group {
    int id;
    int members[max_members + 1];
};
constexpr Group groups[] = {
    {OrvResrc::BASE, {OrvResrc::help, OrvResrc::message, end}},
    {OrvResrc::PATH,
     {OrvResrc::file_path, OrvResrc::data_path, OrvResrc::con_path, OrvResrc::grid_path,
      OrvResrc::raw_path, OrvResrc::image_path, OrvResrc::text_path, OrvResrc::model_path,
      OrvResrc::sat_path, end}},
    {OrvResrc::FILE, {OrvResrc::name_conv, OrvResrc::in_file, OrvResrc::out_file, end}},
    {OrvResrc::CURRENT,
     {OrvResrc::current, OrvResrc::hour, OrvResrc::num_hour, OrvResrc::timezone, end}},
    {OrvResrc::CITY, {OrvResrc::city_file, OrvResrc::stat_prior, end}},
    {OrvResrc::IO, {OrvResrc::input, OrvResrc::output, end}},
    {OrvResrc::GRID, {OrvResrc::grid_num, OrvResrc::grid_type, end}},
    {OrvResrc::DOMAIN, {OrvResrc::plot_domain, OrvResrc::grid_domain, OrvResrc::stat_prior, end}},
    {OrvResrc::DATABASE, {OrvResrc::city_file, OrvResrc::map_file, end}},
    {OrvResrc::PLOT,
     {OrvResrc::plot_type, OrvResrc::plot_scale, OrvResrc::format, OrvResrc::parameter,
      OrvResrc::draw, OrvResrc::label, end}},
    {OrvResrc::COLOR,
     {OrvResrc::font_list, OrvResrc::color_table, OrvResrc::color_data, OrvResrc::color_fill,
      OrvResrc::color_map, OrvResrc::color_grid, OrvResrc::color_latlon, OrvResrc::color_label,
      end}},
    {OrvResrc::COLOR_CONT,
     {OrvResrc::color_cont, OrvResrc::color_clabel, OrvResrc::color_flabel, OrvResrc::color_fmap,
      OrvResrc::color_fgrid, end}},
    {OrvResrc::IDENT, {OrvResrc::identifier, end}},
    {OrvResrc::OBJECT, {OrvResrc::object_param, end}},
    {OrvResrc::CONT, {OrvResrc::con_interval, OrvResrc::con_base, OrvResrc::vect_mag, end}},
    {OrvResrc::DEVICE,
     {OrvResrc::device, OrvResrc::geometry, OrvResrc::title, OrvResrc::icon, OrvResrc::background,
      OrvResrc::inverse, OrvResrc::logo, end}},
};
} // namespace

int OrvResrc::get(int id, ResrcDBItem& item) {
    if (id < 0 || id >= BASE)
        return 0;
    const Row& row = rows[id];
    item = {row.name, row.env, row.cmdln, row.help, nullptr};
    return 1;
}

int OrvResrc::add(ResrcDBList& list, int id) {
    ResrcDBItem item;
    if (get(id, item))
        return list.add(item);
    for (const Group& group : groups) {
        if (group.id != id)
            continue;
        for (const int* member = group.members; *member != end; member++)
            add(list, *member);
        return 1;
    }
    return 0;
}

} // namespace ORV
