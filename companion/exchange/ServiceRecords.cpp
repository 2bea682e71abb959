#include "companion/exchange/ServiceRecords.h"

#include <QDnsLookup>
#include <algorithm>
#include <tuple>
#include <utility>

namespace {

using Place = QList<ServiceRecord>::const_iterator;

// The chance of a record is the share of its weight; one of weight zero comes only when zero is drawn.
Place drawByWeight(Place begin, Place end, QRandomGenerator& random) {
  int sum = 0;
  std::for_each(begin, end, [&sum](const ServiceRecord& record) { sum += record.weight; });
  int drawn = random.bounded(sum + 1);
  Place place = begin;
  while (std::next(place) != end && drawn > place->weight) drawn -= (place++)->weight;
  return place;
}

}  // namespace

void lookUpServices(const QString& name, QObject* context, ServicesFound found) {
  auto* const lookup = new QDnsLookup(QDnsLookup::SRV, name, context);
  QObject::connect(lookup, &QDnsLookup::finished, context, [lookup, found = std::move(found)] {
    lookup->deleteLater();
    QList<ServiceRecord> records;
    for (const QDnsServiceRecord& record : lookup->serviceRecords()) {
      records.append({record.target(), record.port(), record.priority(), record.weight()});
    }
    found(records);
  });
  lookup->lookup();
}

QList<ServiceRecord> inOrderOfTrial(QList<ServiceRecord> records, QRandomGenerator& random) {
  // A single dot means that there is no such service.
  records.removeIf([](const ServiceRecord& record) {
    return record.target.isEmpty() || record.target == QLatin1String(".") || record.port == 0;
  });
  std::stable_sort(records.begin(), records.end(), [](const ServiceRecord& left, const ServiceRecord& right) {
    return std::tie(left.priority, left.weight) < std::tie(right.priority, right.weight);
  });
  QList<ServiceRecord> ordered;
  while (!records.isEmpty()) {
    const quint16 lowest = records.first().priority;
    const auto end = std::find_if(records.cbegin(), records.cend(), [lowest](const ServiceRecord& record) {
      return record.priority != lowest;
    });
    const Place drawn = drawByWeight(records.cbegin(), end, random);
    ordered.append(*drawn);
    records.erase(drawn);
  }
  return ordered;
}
