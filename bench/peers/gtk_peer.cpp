/// The tree view of GTK 3 over its own store, painted into a picture in memory.
#include "peer.h"

#include <cstring>

#include <gtk/gtk.h>

namespace lumtex::bench {
namespace {

class GtkPeer final : public Peer {
  public:
    GtkPeer()
        : window_(gtk_offscreen_window_new()), view_(gtk_tree_view_new()),
          store_(gtk_list_store_new(
              tableColumns, G_TYPE_INT, G_TYPE_STRING, G_TYPE_STRING, G_TYPE_DOUBLE, G_TYPE_STRING)) {
        gtk_tree_view_set_headers_visible(view(), TRUE);
        for (int column = 0; column < tableColumns; ++column) {
            GtkTreeViewColumn* made = gtk_tree_view_column_new_with_attributes(
                "Column", gtk_cell_renderer_text_new(), "text", column, nullptr);
            gtk_tree_view_column_set_sizing(made, GTK_TREE_VIEW_COLUMN_FIXED);
            gtk_tree_view_column_set_fixed_width(made, columnWidths[column]);
            gtk_tree_view_append_column(view(), made);
        }
        gtk_tree_view_set_fixed_height_mode(view(), TRUE);
        GtkWidget* scrolled = gtk_scrolled_window_new(nullptr, nullptr);
        gtk_container_add(GTK_CONTAINER(scrolled), view_);
        gtk_container_add(GTK_CONTAINER(window_), scrolled);
        gtk_widget_set_size_request(scrolled, screenWidth, screenHeight);
        picture_ = cairo_image_surface_create(CAIRO_FORMAT_RGB24, screenWidth, screenHeight);
        pen_ = cairo_create(picture_);
    }
    ~GtkPeer() override {
        gtk_widget_destroy(window_);
        g_object_unref(store_);
        cairo_destroy(pen_);
        cairo_surface_destroy(picture_);
    }
    /// Into a store that no view looks at, as the documentation advises.
    void load(const Table& table) override {
        for (int row = 0; row < table.rows(); ++row)
            insert(table, row, -1);
        gtk_tree_view_set_model(view(), GTK_TREE_MODEL(store_));
    }
    int count() override { return gtk_tree_model_iter_n_children(model(), nullptr); }
    std::string text(int row, int column) override {
        GtkTreeIter place;
        gtk_tree_model_iter_nth_child(model(), &place, nullptr, row);
        if (column == numberColumn) {
            int number = 0;
            gtk_tree_model_get(model(), &place, column, &number, -1);
            return std::to_string(number);
        }
        char* text = nullptr;
        gtk_tree_model_get(model(), &place, column, &text, -1);
        std::string result = text;
        g_free(text);
        return result;
    }
    bool sort(TableColumn column) override {
        GtkTreeSortable* sortable = GTK_TREE_SORTABLE(store_);
        gtk_tree_sortable_set_sort_column_id(sortable, column, GTK_SORT_ASCENDING);
        // Rows that come later go where they are told.
        gtk_tree_sortable_set_sort_column_id(
            sortable, GTK_TREE_SORTABLE_UNSORTED_SORT_COLUMN_ID, GTK_SORT_ASCENDING);
        return true;
    }
    bool insertFirst(const Table& table, int row) override {
        insert(table, row, 0);
        return true;
    }
    bool removeFirst() override {
        GtkTreeIter first;
        gtk_tree_model_get_iter_first(model(), &first);
        return gtk_list_store_remove(store_, &first) != FALSE;
    }
    bool show() override {
        gtk_tree_view_set_model(view(), GTK_TREE_MODEL(store_));
        gtk_widget_show_all(window_);
        settle();
        GtkTreePath* path = gtk_tree_path_new_first();
        GdkRectangle first{};
        gtk_tree_view_get_background_area(view(), path, gtk_tree_view_get_column(view(), 0), &first);
        gtk_tree_path_free(path);
        rowHeight_ = first.height;
        return true;
    }
    void scrollTo(int row) override {
        gtk_adjustment_set_value(gtk_scrollable_get_vadjustment(GTK_SCROLLABLE(view_)), row * rowHeight_);
        paint();
    }
    int firstSeen() override {
        GdkRectangle seen{};
        gtk_tree_view_get_visible_rect(view(), &seen);
        int x = 0;
        int y = 0;
        gtk_tree_view_convert_tree_to_bin_window_coords(view(), 2, seen.y + rowHeight_ / 2, &x, &y);
        GtkTreePath* path = nullptr;
        gtk_tree_view_get_path_at_pos(view(), x, y, &path, nullptr, nullptr, nullptr);
        if (path == nullptr)
            return -1;
        const int row = gtk_tree_path_get_indices(path)[0];
        gtk_tree_path_free(path);
        return row;
    }
    bool hasInk() override {
        cairo_surface_flush(picture_);
        const unsigned char* pixels = cairo_image_surface_get_data(picture_);
        const int stride = cairo_image_surface_get_stride(picture_);
        return std::memcmp(pixels, pixels + 100 * stride, 400) != 0 ||
               std::memcmp(pixels, pixels + 110 * stride, 400) != 0;
    }
    void appendPainted(const Table& table, int row) override {
        insert(table, row, -1);
        paint();
    }

  private:
    GtkTreeView* view() { return GTK_TREE_VIEW(view_); }
    GtkTreeModel* model() { return GTK_TREE_MODEL(store_); }
    void insert(const Table& table, int row, int place) {
        const auto text = [&](int column) { return std::string(table.cell(row, column)); };
        GtkTreeIter made;
        gtk_list_store_insert_with_values(store_,
                                          &made,
                                          place,
                                          numberColumn,
                                          std::atoi(text(numberColumn).c_str()),
                                          nameColumn,
                                          text(nameColumn).c_str(),
                                          cityColumn,
                                          text(cityColumn).c_str(),
                                          amountColumn,
                                          std::atof(text(amountColumn).c_str()),
                                          dateColumn,
                                          text(dateColumn).c_str(),
                                          -1);
    }
    /// Sizes are dealt with at once and not with the next frame, for which a program would only wait.
    void settle() {
        while (gtk_events_pending() != FALSE)
            gtk_main_iteration();
        gtk_container_check_resize(GTK_CONTAINER(window_));
    }
    void paint() {
        settle();
        gtk_widget_draw(view_, pen_);
    }

    GtkWidget* window_;
    GtkWidget* view_;
    GtkListStore* store_;
    cairo_surface_t* picture_;
    cairo_t* pen_;
    int rowHeight_ = 0;
};

} // namespace
} // namespace lumtex::bench

int main(int count, char** arguments) {
    using namespace lumtex::bench;
    gtk_init(nullptr, nullptr);
    return runMeasures(count,
                       arguments,
                       {{"GTK 3 tree view",
                         []() -> std::unique_ptr<Peer> { return std::make_unique<GtkPeer>(); },
                         1'000'000}});
}
